#pragma once

#include "datastore/frmClients.h"
#include "store/openfiles.h"

namespace datastore {

/// Copies the chosen clients to a transfer file on a removable medium. Holds the file of clients while it is open, so
/// that no backup replaces it meanwhile.
class frmCOPYToA : public ClientsScreen {
    Q_OBJECT
public:
    explicit frmCOPYToA(screenkit::Workplace& workplace);

protected:
    void closing() override { m_held.reset(); }
    void pickedAnew() override;
    bool asksAbout(const store::Error& error) override;

private:
    void copyChosen();
    void offerOtherFile(const QString& text, const QString& title);

    std::optional<store::OpenFile> m_held; ///< until the screen closes, which is before it is destroyed
    screenkit::Grid* m_chosen;
};

} // namespace datastore
