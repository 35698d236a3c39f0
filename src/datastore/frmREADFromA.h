#pragma once

#include "screenkit/screen.h"

namespace datastore {

/// Adds the clients of a transfer file to the file in use.
class frmREADFromA : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmREADFromA(screenkit::Workplace& workplace);

private:
    void readFromMedium();
};

} // namespace datastore
