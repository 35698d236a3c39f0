#pragma once

#include "assessment/headfootlines.h"
#include "screenkit/screen.h"

namespace reports {

/// The four header and four footer lines that the practice sets once for all its reports.
class frmHeadFoot : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmHeadFoot(screenkit::Workplace& workplace);

private:
    screenkit::Item lines(const QString& name, std::array<std::string, 4>& lines, const QString& note);
    void cmdOk_Click();

    assessment::HeadFootLines m_lines;
    std::int16_t m_linesChanged = 0;
};

} // namespace reports
