#pragma once

#include <functional>
#include <map>

namespace screenkit {

/// Figures of the client that calculations of other screens overwrite: income tax scales read the income to tax from
/// `Salary`, which the user enters in quick tax. The user's own figure must not get lost in this, so it is stored here
/// and restored, whichever of the borrowing screens calculates last.
class LentFigures {
public:
    /// Runs a calculation that overwrites the figure. The figure before it is stored, unless an earlier calculation
    /// left it there: then the user's own figure is already stored, or the user chose to keep the calculated one.
    void during(double& figure, const std::function<void()>& calculation);
    /// The user asked for the calculation, so the calculated figure stays.
    void keep(const double& figure);
    /// Restores the user's own figure, unless it was entered anew since. True if that changed anything.
    bool giveBack(double& figure);
    /// Forgets all stored figures: they belong to another client.
    void forget() { m_loans.clear(); }

private:
    struct Loan {
        double left = 0;  ///< the last calculation's value of the figure
        double owned = 0; ///< the user's own figure
        bool isLent = false;
    };
    std::map<const double*, Loan> m_loans;
};

} // namespace screenkit
