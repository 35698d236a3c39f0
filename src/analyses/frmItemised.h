#pragma once

#include <QPushButton>
#include <initializer_list>
#include <map>
#include <vector>

#include "analyses/itemise.h"
#include "screenkit/screen.h"

namespace analyses {

/// The common part of the three needs analyses whose money lines may be itemised.
///
/// A line's button opens a panel with a copy of its list. OK stores the copy, and its sum becomes the line's figure;
/// closing the panel discards the copy, after a question if it was changed. While a list is in use, its line's fields
/// are locked and its button shows another picture.
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
    /// Closes the panel; false if the user chooses to go on editing.
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
