#pragma once

#include "screenkit/screen.h"

namespace diary {

class MonthView;

/// A date and a calendar, each following the other.
class frmDiary : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmDiary(screenkit::Workplace& workplace);

protected:
    void settled(screenkit::Field* field) override;

private:
    double m_day;
    screenkit::DateField* m_date = nullptr;
    MonthView* m_calendar = nullptr;
};

/// The practice's screens.
class frmCRM : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmCRM(screenkit::Workplace& workplace);
};

} // namespace diary
