#pragma once

#include <functional>
#include <vector>

#include "tour/hands.h"

/// What the steps through the three large needs analyses have in common.
namespace tour {

using Rows = std::vector<QStringList>;

/// Fills the list behind an itemise button by keyboard alone.
void itemise(Hands& hands, const QString& button, const Rows& rows, const QString& pictureName = {});

/// The two sentences of an analysis.
struct Sentences {
    QString lasts, needed;
    bool operator==(const Sentences&) const = default;

    int years() const;   ///< that the capital lasts; 0 if that is not said
    double more() const; ///< additional cover, rand; 0 if none is required
};

Sentences sentences(Hands& hands);

/// With the additional cover as capital, the capital must suffice for the years wanted; with 10 000 less it must not.
void checkCover(Hands& hands, int yearsWanted);

/// The amortisation table and the graph of the analysis in front. Each year must follow from the one before with what
/// `added` says is paid out in it (row from 0), and only the last one must not be covered.
void showYears(Hands& hands, const QString& graphButton, double first, const std::function<double(int row)>& added,
               const QString& pictureName);

/// Prints the analysis in front with all that goes with it, into a folder of PDFs for the client.
void exportSet(Hands& hands, const QString& folder);

} // namespace tour
