#pragma once

#include "screenkit/screen.h"

class QTextBrowser;

namespace shell {

/// A help page that lies beside the program: the user's guide. A missing page shows one line that says so.
class frmBrowser : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmBrowser(screenkit::Workplace& workplace);

protected:
    QWidget* firstField() override;

private:
    QTextBrowser* m_page;
};

} // namespace shell
