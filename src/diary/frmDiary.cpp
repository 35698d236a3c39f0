#include "diary/frmDiary.h"

#include <QLabel>

#include "diary/frmMonthView.h"

namespace diary {

using namespace screenkit;

frmDiary::frmDiary(Workplace& workplace) : Screen(workplace, "frmDiary", "Calendar", untracked()), m_day(today()) {
    m_date = date("DTPicker1", m_day, DateKind().required("Error"));
    untrackedField(m_date);
    m_calendar = new MonthView("MonthView1");
    m_calendar->setDay(m_day);
    m_calendar->dayPicked = [this](double day) {
        m_day = day;
        m_date->fill();
    };
    body(column({form({{"&Date", m_date}}), Item(m_calendar), Item(note(legend(false))), spring(),
                 row({spring(), okButton()})}));
}

void frmDiary::settled(Field* field) {
    if (field == m_date && m_day != m_calendar->day()) m_calendar->setDay(m_day);
}

frmCRM::frmCRM(Workplace& workplace) : Screen(workplace, "frmCRM", "CRM", untracked()) {
    body(column({Item(note("Your appointments, birthdays and tasks by day:")),
                 row({opener("cmdCalendar", "&Diary", "frmCalendar"), spring()}),
                 Item(note("A calendar to look up a date:")),
                 row({opener("cmdDiary", "&Calendar", "frmDiary"), spring()}), spring(), row({spring(), okButton()})}));
}

} // namespace diary
