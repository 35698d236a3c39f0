#pragma once

#include <array>

#include "screenkit/screen.h"

namespace reports {

/// Blank Analysis Questionnaires: empty forms for a meeting with a client. Print.mdb is not written.
class frmBlankAnaQuestion : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmBlankAnaQuestion(screenkit::Workplace& workplace);

private:
    void run(screenkit::Destination destination);

    std::array<int, 4> m_ticked{};
    double m_copies = 1;
};

} // namespace reports
