#pragma once

#include <filesystem>

#include "datastore/clientlist.h"
#include "screenkit/screen.h"

namespace store {
class Error;
}

namespace datastore {

/// Names of the fields beside the client list on a screen.
struct ClientFieldNames {
    QString name = "txtName", description = "txtDescription", birthDate = "dtBirthDate";
};

/// A screen that lists the clients of the file, `List1`, by surname, to pick one or several from.
///
/// Words typed into `txtSearch` narrow the list; clicking a column head sorts it. The fields below show the current
/// line. When the screen comes to the front, the list is read again if the file has changed or could not be read
/// before. An empty list says why it is empty. The toolbar is disabled while such a screen is open.
class ClientsScreen : public screenkit::Screen {
    Q_OBJECT
public:
    ClientsScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption,
                  screenkit::Grid::Picking picking, const ClientFieldNames& fields = {});

protected:
    /// The search field, the list and the fields of the current line, for the screen's body.
    QLayout* clientList();
    /// The clients picked, in surname order.
    std::vector<const ClientLine*> picked() const;
    screenkit::Grid* list() const { return m_list; }
    /// Reads the list again if the file has changed, or if it could not be read the last time.
    void readAgain() { read(false); }

    /// Called when the searched text, and with it the list, has changed.
    virtual void narrowed(bool /*bySomeWord*/) {}
    /// Called when other clients are picked, or the list has been read again.
    virtual void pickedAnew() {}
    /// Called when the list can't be read as the screen opens; true if the screen asks what to do, so that the usual
    /// message is not needed.
    virtual bool asksAbout(const store::Error& /*error*/) { return false; }
    /// Called when a line is double-clicked.
    virtual void lineOpened() {}

    QWidget* firstField() override;
    void filled() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Identifies the state of a file when it was read.
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
    std::optional<ClientSearch> m_finder; ///< created when the first search is typed
    std::optional<Stamp> m_read;          ///< the state of the file that is listed
    QString m_trouble;                    ///< why the file could not be read
    bool m_picksAtOnce; ///< going to the list picks its first line: a client is loaded by a word, Down and Enter
    bool m_listed = false;
    QLineEdit* m_search = nullptr;
    screenkit::Grid* m_list = nullptr;
    QLineEdit *m_name = nullptr, *m_description = nullptr, *m_birthDate = nullptr;
};

} // namespace datastore
