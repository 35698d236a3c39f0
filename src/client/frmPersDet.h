#pragma once

#include <optional>
#include <vector>

#include "assessment/assessment.h"
#include "screenkit/screen.h"

class QLabel;

namespace client {

/// The personal details: all that is known of client, spouse and dependants, and its report.
class frmPersDet : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmPersDet(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void settled(screenkit::Field* field) override;

private:
    /// A date of birth. The user is asked about one that is unlikely.
    struct Birth {
        screenkit::DateField* field;
        const double* date;
        double seen = base::blankDate; ///< loaded, or the user was already asked about it: do not ask again
    };
    /// An identity number, the remark on it, and the button that copies its date of birth.
    struct Identity {
        screenkit::TextField* number = nullptr;
        const std::string* digits = nullptr;
        std::size_t birth = 0; ///< the date that belongs to it, in `m_births`
        QLabel* remark = nullptr;
        QPushButton* take = nullptr;
        std::optional<double> offered = {};
    };
    screenkit::DateField* birthDate(const QString& name, double& place);
    /// The number belongs to the date of birth declared last.
    screenkit::TextField* identityNumber(Identity& identity, const QString& name, std::string& place, int size);
    screenkit::Item identityRemark(Identity& identity, const QString& who);
    void showRemark(Identity& identity);
    screenkit::Item clientPage();
    screenkit::Item spousePage();
    screenkit::Item addressPage();
    screenkit::Item dependantsPage();
    screenkit::Item notesPage();
    /// The number of characters that the file stores of one of the client's texts.
    int room(const std::string& place);
    screenkit::TextField* namePart(const QString& name, std::string& part, int size, int characters = 0);
    /// The details asked of both client and spouse; `who` is "C" or "S" in the controls' names.
    struct Contact {
        const char* who;
        std::string &telWork, &telHome, &faxWork, &faxHome, &cell, &email;
        std::int16_t &marital, &smoker;
    };
    screenkit::Item page(QWidget* person, const Contact& contact, QWidget* status);
    void buildPrintPanel();

    void NameFunc();
    void copyPostalToResidential();
    void print(screenkit::Destination destination);

    assessment::PersonalDetails& m_details;
    assessment::Client& m_client;
    int m_includeNotes = 0;
    std::vector<Birth> m_births;
    Identity m_ids[2]; ///< the client's and the spouse's
    screenkit::TextField* m_residential[3] = {};
    screenkit::PrintPanel* m_printPanel = nullptr;
};

} // namespace client
