#pragma once

#include "diary/entries.h"
#include "screenkit/screen.h"

namespace diary {

/// Activities pending: the diary's entries from today on, by day and time. Read again whenever the screen comes to the
/// front.
class frmActPending : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmActPending(screenkit::Workplace& workplace);

protected:
    void filled() override;

private:
    void show(std::vector<Entry> entries);

    std::vector<Entry> m_entries;
    screenkit::Grid* m_list = nullptr;
};

} // namespace diary
