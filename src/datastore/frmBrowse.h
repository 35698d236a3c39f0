#pragma once

#include "datastore/frmClients.h"

namespace datastore {

/// The clients of the file in surname order; loads the one chosen.
class frmBrowse : public ClientsScreen {
    Q_OBJECT
public:
    explicit frmBrowse(screenkit::Workplace& workplace);

protected:
    void narrowed(bool bySomeWord) override;
    void lineOpened() override { load(); }

private:
    void load();
};

} // namespace datastore
