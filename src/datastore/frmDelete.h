#pragma once

#include "datastore/frmClients.h"

namespace datastore {

/// Lists the clients of the file and deletes the one that is chosen, after a question.
class frmDelete : public ClientsScreen {
    Q_OBJECT
public:
    explicit frmDelete(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    void deleteChosen();
};

} // namespace datastore
