#pragma once

#include <optional>

#include "datastore/printfeed.h"
#include "screenkit/screen.h"

namespace reports {

/// Names of the buttons of a result screen, for one that needs its own.
struct ResultNames {
    QString calculate = "cmdCalculate", ok = "cmdOK";
};

/// A screen that works out results from its fields and prints them: yellow results, a line of buttons (Calculate, its
/// own, Print, OK) and the print panel. It calculates when it is filled; the run must then leave the record as it is.
///
/// Without choices of its own in the print panel, the results go into Print.mdb when Print is pressed; with choices,
/// when they have been made.
class ResultScreen : public screenkit::Screen {
    Q_OBJECT
protected:
    using Screen::Screen;

    /// A figure that the calculation answers with: it looks out of date from an edit until the next calculation.
    screenkit::NumberField* answer(const QString& name, screenkit::Bound<double> place,
                                   const screenkit::NumberKind& kind = screenkit::money);
    /// The same for a result that has its own place on the screen.
    screenkit::NumberField* keptAnswer(screenkit::NumberField* field);
    /// Shows all answers, as errors if the figures give no finite ones, and marks them as up to date, but for those
    /// that the calculation left as they were.
    void showAnswers(bool areFinite = true, std::set<QWidget*> leftAsTheyWere = {});
    /// `cmdCalculate`, the screen's own buttons, `cmdPrint` and `cmdOK`. Enter presses Calculate.
    QLayout* buttonLine(const std::vector<QPushButton*>& own = {}, const ResultNames& names = {});
    /// A button for what needs results: brings them up to date, then acts.
    QPushButton* resultButton(const QString& name, const QString& caption, std::function<void()> action);
    /// The print panel, with the screen's choices, such as whether to print a table; they are no edits of the record.
    void prints(std::initializer_list<screenkit::Item> choices = {}, const std::vector<screenkit::Field*>& fields = {},
                const screenkit::PrintNames& names = {});

    /// Works the results out and shows them.
    virtual void calculate() = 0;
    /// Brings the results up to date before a table, a graph or a report shows them. While the print panel was open
    /// another screen may have changed a figure that this one shares.
    virtual void bringUpToDate() { calculate(); }
    /// Writes what is printed into Print.mdb. Nothing if there is nothing to print: the focus then goes to OK.
    virtual std::optional<datastore::Printout> feed() = 0;
    /// Has a screen reader say what Calculate answered: all results that are shown.
    virtual void sayAnswers();
    void filled() override { calculate(); }

    QPushButton* m_ok = nullptr;

private:
    void openPrint();
    void print(screenkit::Destination destination);

    std::vector<screenkit::NumberField*> m_answers;
    screenkit::PrintPanel* m_printPanel = nullptr;
    bool m_hasChoices = false;
};

} // namespace reports
