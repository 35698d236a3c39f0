#pragma once

#include <functional>
#include <map>

namespace screenkit {

/// Figures of the client's that calculations of other screens work over: the scale of income tax takes the income that
/// it taxes from `Salary`, whose own screen is quick tax. What the user has not asked for must not cost him the figure
/// that stood there, so it is kept aside and given back, whichever of the screens that borrow it works last.
class LentFigures {
public:
    /// Runs a calculation that writes over the figure. What stood there is kept aside, unless it is what an earlier one
    /// left; then the owner's figure is kept aside already, or the user wanted it so.
    void during(double& figure, const std::function<void()>& calculation);
    /// The user has asked for the calculation: what it left is the figure from here on.
    void keep(const double& figure);
    /// Puts the owner's figure back, unless it has been entered anew meanwhile. True if that changed anything.
    bool giveBack(double& figure);
    /// Another client has come: what was kept aside is not his.
    void forget() { m_loans.clear(); }

private:
    struct Loan {
        double left = 0;  ///< what the last calculation left in the figure's place
        double owned = 0; ///< what it is given back as
        bool isLent = false;
    };
    std::map<const double*, Loan> m_loans;
};

} // namespace screenkit
