#pragma once

#include "assessment/assessment.h"
#include "screenkit/screen.h"

namespace client {

/// The client's front page: all that is known of client, spouse and dependants, and its report.
class frmPersDet : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmPersDet(screenkit::Workplace& workplace);

private:
    screenkit::Item clientPage();
    screenkit::Item spousePage();
    screenkit::Item addressPage();
    screenkit::Item dependantsPage();
    screenkit::Item notesPage();
    screenkit::TextField* namePart(const QString& name, std::string& part, int size, int characters = 0);
    /// What client and spouse alike are asked beside who they are; `who` is "C" or "S" in the controls' names.
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
    screenkit::TextField* m_residential[3] = {};
    screenkit::Panel* m_printPanel = nullptr;
};

} // namespace client
