#pragma once

#include <QPushButton>
#include <initializer_list>
#include <map>
#include <vector>

#include "analyses/itemise.h"
#include "screenkit/listpanel.h"

namespace analyses {

/// The common part of the three needs analyses whose money lines may be itemised.
///
/// A line's button opens a panel with a copy of its list. OK stores the copy, and its sum becomes the line's figure.
/// While a list is in use, its line's fields are locked and its button shows another picture.
class ItemisedScreen : public screenkit::ListScreen<screenkit::Screen> {
    Q_OBJECT
protected:
    ItemisedScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed,
                   assessment::Analysis analysis);

    /// `cmdItemise(index)`: opens the list of that line, which must be one of `itemLines`.
    QPushButton* itemiseButton(int index);
    /// `cmdItemise(index)` of the line that the policies fill: opens their schedule instead of a list.
    QPushButton* policiesButton(int index);
    /// These fields show the total of the line's list and are locked while the list is in use.
    void locks(int index, std::initializer_list<screenkit::Field*> fields);
    /// Sets pictures and locks from the flags. Call it in `filled()`.
    void refreshItemised();

    /// Marks the client as changed, since the record differs from the file.
    void markChanged() { m_changedFlag = 1; }
    /// Prints the lists in use as a report of their own; nothing if there are none.
    void printItems(screenkit::Destination destination);

    /// Called after the user has confirmed a list; the line's fields already show its total.
    virtual void itemsTaken(const ItemLine&) {}
    virtual void recalculate() = 0;

private:
    struct Shown {
        QPushButton* button = nullptr;
        std::vector<screenkit::Field*> fields;
    };

    const ItemLine& line(int index) const;
    void refresh(const ItemLine& line);
    void refreshPolicies();
    QPushButton* small(QPushButton* push, const QString& name) const;
    void open(const ItemLine& line);
    void listTaken(const std::vector<screenkit::EditRow>& rows) override;
    void listEdited() override { showTotal(); }
    void showTotal();

    std::int16_t& m_changedFlag;
    assessment::Analysis m_analysis;
    std::map<int, Shown> m_shown;
    QPushButton* m_policies = nullptr;
    screenkit::NumberField* m_totalField = nullptr;
    double m_total = 0;
    const ItemLine* m_open = nullptr; ///< the line whose list is or was last in the panel
};

} // namespace analyses
