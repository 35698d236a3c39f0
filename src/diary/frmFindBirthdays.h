#pragma once

#include "diary/frmFollowUp.h"

namespace screenkit {
class ComboField;
}

namespace diary {

/// Search for birthdays: of clients, spouses or dependants, in a month and an age range.
class frmFindBirthdays : public FollowUpScreen {
    Q_OBJECT
public:
    explicit frmFindBirthdays(screenkit::Workplace& workplace);

private:
    std::optional<std::vector<FoundClient>> search() override;
    std::vector<screenkit::GridColumn> heads() const override;
    screenkit::GridCell cell(const FoundClient& line, std::size_t column) const override;
    datastore::Printout feed(const std::vector<FoundClient>& found) const override;

    int m_who = 0, m_month = -1, m_order = 0;
    double m_startAge = 0, m_endAge = 120;
    BirthdaySearch m_shown; ///< the search that the list shows
    screenkit::ComboField* m_months = nullptr;
    screenkit::NumberField* m_start = nullptr;
};

} // namespace diary
