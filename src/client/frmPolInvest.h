#pragma once

#include "assessment/assessment.h"
#include "client/policyremarks.h"
#include "client/policyreport.h"
#include "client/policyschedule.h"
#include "screenkit/remark.h"
#include "screenkit/screen.h"

class QGroupBox;

namespace client {

/// The client's schedule of policies and investments, one record at a time, with each one's worth at retirement, a list
/// of all with totals, and the two reports.
class frmPolInvest : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmPolInvest(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void edited() override { showValues(); }

private:
    screenkit::Item policyPage();
    screenkit::Item deathPage();
    screenkit::Item disabilityPage();
    screenkit::Item retirementPage();
    screenkit::Item listPage();
    screenkit::Item valuesGroup();
    QLayout* buttons();
    void buildCPIPanel();
    void buildPrintPanel();

    // Fields bound to a column of the schedule and named after it.
    screenkit::NumberField* figure(const QString& column, const screenkit::NumberKind& kind, const QString& spoken);
    screenkit::NumberField* amount(const QString& column, const QString& spoken = {});
    screenkit::NumberField* age(const QString& column, const QString& spoken = {});
    screenkit::NumberField* years(const QString& column, const QString& spoken = {});
    screenkit::NumberField* rate(const QString& column, const QString& spoken = {});
    screenkit::TextField* line(const QString& column);
    screenkit::CheckField* tick(const QString& column, const QString& caption, std::function<void(bool)> ticked = {});
    /// One line: a value, the age at which it applies, its escalation from then on, and optionally a tick box for its
    /// use.
    QLayout* valueAtAge(const QString& benefit, const QString& value, const QString& age, const QString& escalation,
                        const QString& escalationCaption, QWidget* taken = nullptr);
    /// A figure with space beside it for a remark from `policyRemarks`.
    QLayout* remarked(screenkit::NumberField* field);
    screenkit::Remark* remarkOn(screenkit::NumberField* field);
    screenkit::NumberField* valueField(const QString& name, double& value);
    screenkit::Bound<double> place(const QString& column);

    /// The record on the screen.
    assessment::Policy& policy();
    std::size_t count() const { return m_record.policies.size(); }
    void show(std::size_t number);
    void step(int direction);
    void add();
    void remove();
    void showPlace();
    void showValues();
    void showName();
    void showRemarks();
    void fillList();
    void goToPicked();
    void lockPremiums(bool paidUp);
    void calculate();
    void print(screenkit::Destination destination);

    assessment::Assessment& m_record;
    ValuesAtRetirement m_values;
    double m_typedCPI = 0;
    int m_printList = 1, m_printSchedule = 0, m_includeNotes = 0;
    struct Remarked {
        screenkit::NumberField* field;
        screenkit::Remark* label;
    };
    std::vector<Remarked> m_remarks;
    std::vector<screenkit::NumberField*> m_valueFields;
    std::vector<QWidget*> m_premiums; ///< fields that a paid-up policy locks
    screenkit::TextField *m_type = nullptr, *m_other = nullptr;
    QTabWidget* m_pages = nullptr;
    screenkit::Grid* m_list = nullptr;
    bool m_inList = false;               ///< a line of the list was picked and its record is about to be shown
    QGroupBox* m_atRetirement = nullptr; ///< below every page; its title names the record
    QPushButton *m_back = nullptr, *m_forward = nullptr;
    std::function<void()> m_openCPI;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

/// Prints the reports on all policies of the record; no screen need be open. Totals the schedule for the analyses
/// first. False if the report could not run and the user has been told. Throws store::Error if Print.mdb can't be
/// written.
bool PrintPolInvList(screenkit::Workplace& workplace, screenkit::Destination destination,
                     const PolicyReportOptions& options = {});
bool PrintPolInvSchedule(screenkit::Workplace& workplace, screenkit::Destination destination,
                         const PolicyReportOptions& options = {});

} // namespace client
