#pragma once

#include "datastore/frmClients.h"

namespace datastore {

/// Lists the clients of the file by surname and loads the one that is picked.
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
