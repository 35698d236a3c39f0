#pragma once

#include "screenkit/screen.h"

namespace store {
class Error;
}

namespace datastore {

/// Asks for another file of clients and works with it from now on: `DataPath.txt` names it, and the current client
/// counts as not on file. False if the user cancels or chooses the file in use; then nothing has changed. Throws
/// store::Error, with nothing changed.
bool locateClientDb(screenkit::Workplace& work);

/// Why a file of clients could not be opened: there is none, or it is another kind of file.
bool isNotFound(const store::Error& error);
bool isNoClientFile(const store::Error& error);

/// Shows the path of the clients in use, and changes it.
class frmMasterDBLocator : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmMasterDBLocator(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void cameToFront() override;

private:
    void cmdLocateSysAdmin();
    void offerToSetPath(const QString& text, const QString& title);

    QLineEdit* m_path;
    bool m_looked = false;
};

} // namespace datastore
