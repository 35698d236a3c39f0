#pragma once

#include "finance/lifeofcapital.h"
#include "screenkit/screen.h"

namespace finance {

/// A screen, or a panel of one, that shows how long a capital pays a rising income, with a table of the years and a
/// graph. Its fields hold the record's life of capital.
class CapitalLifeScreen : public screenkit::Screen {
    Q_OBJECT
public:
    /// more: from which result on the answer reads "more than".
    CapitalLifeScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption,
                      std::int16_t& changed, const MoreThan& more);

protected:
    /// The inputs and, last, the answer, for a form.
    std::vector<screenkit::FormRow> lifeRows();
    void calculateLife();
    /// Shows the years; without any the first line alone.
    void showLifeYears(QWidget* focusAfter);
    /// Draws them; without any the focus goes to `otherwise`.
    void drawLife(QWidget* otherwise);
    QPushButton* lifeYearsButton(std::function<void()> action);
    QPushButton* lifeGraphButton(std::function<void()> action);

    assessment::LifeOfCapital& m_inputs;
    CapitalLife m_life;
    screenkit::NumberField* m_lasts = nullptr;

private:
    MoreThan m_more;
    double m_years = 0; ///< shown as the answer
};

} // namespace finance
