#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "assessment/newasset.h"
#include "tax/capitalgain.h"
#include "tax/capitalgainyear.h"

namespace tax {

/// The client's list of assets as a screen walks through it.
///
/// Assets are numbered from 1. While there are none, the asset shown is a new one that is not yet part of the list; its
/// first description makes it asset 1. An asset is worked out when it is left and when it is shown; the others keep the
/// gain that they were saved with.
class AssetList {
public:
    /// Shows the first asset. The gains must live as long as the list; the assets may be replaced from outside.
    explicit AssetList(assessment::CapitalGains& gains) : m_gains(gains) {}

    /// Shows the first asset again, for the assets of another client.
    void restart() {
        m_shown = 1;
        m_new = assessment::newAsset();
    }

    int CGTMaxNum() const { return static_cast<int>(m_gains.assets.size()); }
    /// Number of the asset shown; 0 without assets.
    int CurrentAsset() const;
    assessment::CGTAssetRecord& shown();
    /// How many assets, the last ones, are not counted in the year's totals.
    int notCounted() const;

    /// Stores a description; the first one that is not empty makes asset 1.
    void describe(std::string description);

    /// To the next asset, from the last to the first; and the other way round.
    void forward() { step(1); }
    void back() { step(-1); }

    enum class Added { yes, noDescription, full };
    /// Appends a new asset and shows it. Only if the asset shown has a description, up to 1000 assets.
    Added add();

    /// Deletes the asset shown. The next one is shown, or the last; without assets a new one.
    ///
    /// All assets in front of it lose their `SBFiveDed` and `SB750PortDed`: they become empty and 0, and the deduction
    /// is to be confirmed again. That is meant. Until then a small business is taxed on its whole gain.
    void remove();

    /// Removes the last asset if nothing was entered in it. Otherwise it would decide, without a description, that the
    /// year has no gain. Returns whether it did.
    bool dropEmptyLast();

    /// Works the asset shown out and stores its gain.
    AssetGain workOutShown() { return workOut(shown()); }
    /// Works the asset shown out and adds up the year.
    YearTotals ADDITCGTCALC();

private:
    void step(int direction);
    void renumber();

    assessment::CapitalGains& m_gains;
    assessment::CGTAssetRecord m_new = assessment::newAsset();
    int m_shown = 1; ///< may exceed the list after a deletion: CurrentAsset() is what counts
};

/// The list of known gains as it is typed: one row a source, `copSplit` meaning foreign.
///
/// Stores the rows and their sums: `AdditCapGainLocal` and `AdditCapGainForeign`, where rows with a split count by
/// half, and those halves alone in `ExclCOPAdditCapGainLocal` and `ExclCOPAdditCapGainForeign`. `ItemiseAdditCapGain`
/// is 1 if the amounts, none halved, add up to anything but 0; otherwise 0, and then the rows are not saved. The gain
/// of a row is typed, not worked out from proceeds and base cost.
void takeItemisedGains(assessment::CapitalGains& gains, std::vector<assessment::CGTTrustRow> rows);

/// True for a stored "Yes" in any case; files may also hold Y or 1 for it. Anything else is No.
bool isYes(std::string_view stored);

} // namespace tax
