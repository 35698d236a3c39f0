#pragma once

#include <filesystem>

#include "datastore/clientlist.h"
#include "screenkit/screen.h"

namespace datastore {

/// What the fields beside the list of clients are called on a screen.
struct ClientFieldNames {
    QString name = "txtName", description = "txtDescription", birthDate = "dtBirthDate";
};

/// A screen that lists the clients of the file, `List1`, in surname order, to pick one or several from.
///
/// Words typed into `txtSearch` narrow the list; its heads sort it. What is known of the line gone to stands below. The
/// list is read when the screen comes to the front and the file has changed since, so that a file that could not be
/// read, or has got another client meanwhile, is listed as it is now; a list that is empty says why. The toolbar is off
/// while such a screen is open.
class ClientsScreen : public screenkit::Screen {
    Q_OBJECT
public:
    ClientsScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption,
                  screenkit::Grid::Picking picking, const ClientFieldNames& fields = {});

protected:
    /// Search field, list and the fields of the line gone to, for the screen's body.
    QLayout* clientList();
    /// The clients picked, in surname order.
    std::vector<const ClientLine*> picked() const;
    screenkit::Grid* list() const { return m_list; }
    /// Reads the list again if the file has changed, or if it could not be read the last time.
    void readAgain() { read(false); }

    /// The text searched for has changed, and the list with it.
    virtual void narrowed(bool /*bySomeWord*/) {}
    /// A line was opened by a double click.
    virtual void lineOpened() {}

    QWidget* firstField() override;
    void filled() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A file as it was when it was read.
    struct Stamp {
        std::filesystem::path path;
        std::filesystem::file_time_type changed;
        std::uintmax_t size = 0;
        bool operator==(const Stamp&) const = default;
    };
    Stamp stampNow() const;
    void read(bool withBox);
    void take(std::vector<ClientLine> clients);
    void narrow();
    void showEntry();
    void sayWhyEmpty();

    ClientFieldNames m_fieldNames;
    std::vector<ClientLine> m_clients;
    std::optional<ClientSearch> m_finder; ///< made when the first search is typed
    std::optional<Stamp> m_read;          ///< the file as it is listed
    QString m_trouble;                    ///< why it could not be read
    bool m_listed = false;
    QLineEdit* m_search = nullptr;
    screenkit::Grid* m_list = nullptr;
    QLineEdit *m_name = nullptr, *m_description = nullptr, *m_birthDate = nullptr;
};

} // namespace datastore
