#include "tax/capitalgainlist.h"

#include <algorithm>
#include <utility>

#include "base/finite.h"
#include "base/text.h"

namespace tax {

namespace {
using assessment::CapitalGains;
using assessment::CGTAssetRecord;
using assessment::CGTTrustRow;
} // namespace

int AssetList::CurrentAsset() const { return std::clamp(m_shown, std::min(1, CGTMaxNum()), CGTMaxNum()); }

CGTAssetRecord& AssetList::shown() {
    const int current = CurrentAsset();
    return current == 0 ? m_new : m_gains.assets[static_cast<std::size_t>(current - 1)];
}

int AssetList::notCounted() const { return std::max(0, CGTMaxNum() - static_cast<int>(mostAssets)); }

void AssetList::describe(std::string description) {
    shown().AssetDesc = std::move(description);
    if (!m_new.AssetDesc.empty()) m_gains.assets.push_back(std::exchange(m_new, assessment::newAsset()));
}

void AssetList::step(int direction) {
    workOutShown();
    const int count = CGTMaxNum();
    if (count == 0) return;
    m_shown = (CurrentAsset() - 1 + direction + count) % count + 1;
    workOutShown();
}

AssetList::Added AssetList::add() {
    if (shown().AssetDesc.empty()) return Added::noDescription;
    if (m_gains.assets.size() >= mostAssets) return Added::full;
    workOutShown();
    m_gains.assets.push_back(assessment::newAsset());
    m_shown = CGTMaxNum();
    renumber();
    return Added::yes;
}

void AssetList::remove() {
    const int deleted = CurrentAsset();
    m_new = assessment::newAsset();
    if (deleted == 0) return;
    auto& assets = m_gains.assets;
    const auto place = assets.begin() + (deleted - 1);
    std::for_each(assets.begin(), place, [](CGTAssetRecord& asset) {
        asset.SBFiveDed.clear();
        asset.SB750PortDed = 0;
    });
    assets.erase(place);
    m_shown = deleted;
    renumber();
    workOutShown();
}

bool AssetList::dropEmptyLast() {
    auto& assets = m_gains.assets;
    if (assets.empty()) return false;
    CGTAssetRecord untouched = assessment::newAsset();
    untouched.CGTAssetNum = assets.back().CGTAssetNum;
    if (assets.back() != untouched) return false;
    assets.pop_back();
    return true;
}

YearTotals AssetList::ADDITCGTCALC() {
    workOutShown();
    return yearTotals(m_gains);
}

void AssetList::renumber() {
    for (std::int16_t number = 0; CGTAssetRecord & asset : m_gains.assets)
        asset.CGTAssetNum = ++number;
}

void takeItemisedGains(CapitalGains& gains, std::vector<CGTTrustRow> rows) {
    struct Sums {
        double unsplit = 0, split = 0;
    } local, foreign;
    double all = 0;
    for (const CGTTrustRow& row : rows) {
        Sums& sums = isYes(row.copSplit) ? foreign : local;
        (isYes(row.ExclCOPSplit) ? sums.split : sums.unsplit) += row.Amount;
        all += row.Amount;
    }
    base::keepFinite(gains.ExclCOPAdditCapGainLocal, local.split / 2);
    base::keepFinite(gains.ExclCOPAdditCapGainForeign, foreign.split / 2);
    base::keepFinite(gains.AdditCapGainLocal, local.unsplit + local.split / 2);
    base::keepFinite(gains.AdditCapGainForeign, foreign.unsplit + foreign.split / 2);
    gains.ItemiseAdditCapGain = all != 0 ? 1 : 0;
    gains.trustOther = std::move(rows);
}

bool isYes(std::string_view stored) {
    const std::string word = base::trim(stored);
    return base::sameWord(word, "yes") || base::sameWord(word, "y") || word == "1";
}

} // namespace tax
