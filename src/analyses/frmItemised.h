#pragma once

#include <QPushButton>
#include <initializer_list>
#include <map>
#include <vector>

#include "analyses/itemise.h"
#include "screenkit/screen.h"

namespace analyses {

/// A needs analysis some of whose money lines may be itemised: what the three of them share.
///
/// A line's button opens a panel with a copy of its list. OK makes the copy the list, and its sum the line's figure;
/// closing drops it, after asking if something in it was changed. While a list is in use its line's fields are locked
/// and its button shows another picture.
class ItemisedScreen : public screenkit::Screen {
    Q_OBJECT
public:
    void clientReplaced() override;
    bool commitPendingEdits() override;

protected:
    ItemisedScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                   assessment::Analysis analysis);

    /// `cmdItemise(index)`: opens the list of that line, which must be one of `itemLines`.
    QPushButton* itemiseButton(int index);
    /// `cmdItemise(index)` of the line that the policies feed: opens their schedule in place of a list.
    QPushButton* policiesButton(int index);
    /// These fields show what the line's list comes to and lock while it is in use.
    void locks(int index, std::initializer_list<screenkit::Field*> fields);
    /// Pictures and locks by the flags: to be called in `filled()`.
    void refreshItemised();

    /// The lists in use as a report of their own; none if there are none.
    void printItems(screenkit::Destination destination);

    /// The user has taken a list: the line's fields show it already.
    virtual void itemsTaken(const ItemLine&) {}
    virtual void recalculate() = 0;

    bool mayClose() override;

private:
    struct Shown {
        QPushButton* button = nullptr;
        std::vector<screenkit::Field*> fields;
    };

    const ItemLine& line(int index) const;
    void refresh(const ItemLine& line);
    void refreshPolicies();
    QPushButton* small(QPushButton* push, const QString& name) const;
    void buildPanel();
    void open(const ItemLine& line);
    void take();
    /// Closes the panel; false if the user would rather go on.
    bool leavePanel();
    void closePanel();
    bool hasChanges() const;
    void showTotal();

    std::int16_t& m_changedFlag;
    assessment::Analysis m_analysis;
    std::map<int, Shown> m_shown;
    QPushButton* m_policies = nullptr;
    screenkit::Panel* m_panel = nullptr;
    screenkit::EditGrid* m_grid = nullptr;
    screenkit::NumberField* m_totalField = nullptr;
    double m_total = 0;
    const ItemLine* m_open = nullptr; ///< the line whose list is in the panel
    std::vector<screenkit::EditRow> m_before;
};

} // namespace analyses
