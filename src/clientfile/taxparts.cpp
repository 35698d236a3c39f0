#include <cmath>

#include "clientfile/partlists.h"
#include "clientfile/partof.h"
#include "tax/capitalgainlist.h"
#include "tax/capitalgainreports.h"
#include "tax/estatedutyreport.h"
#include "tax/lumpsumreport.h"
#include "tax/rataxreport.h"
#include "tax/travelreport.h"

namespace clientfile {

namespace {

using assessment::Assessment;
using datastore::Printout;

struct RetirementFundingPart {
    struct Saved {
        assessment::RATaxAdvantage inputs;
        tax::RATaxResult result;
    };
    /// Name and age are no entries: the screen takes the client's own where there is none.
    static bool isEntered(const Assessment& client) {
        assessment::RATaxAdvantage inputs = client.raTaxAdvantage;
        inputs.RASurname.clear();
        inputs.RATaxPayerAge = 0;
        return inputs != assessment::RATaxAdvantage{};
    }
    static std::optional<Saved> result(const Source& source) {
        Saved saved{tax::startingRATaxAdvantage(source.record, source.today), {}};
        assessment::KwikTax scale = source.record.tax;
        saved.result = tax::calculateRATaxAdvantage(saved.inputs, scale);
        if (!std::isfinite(saved.result.saving) || !std::isfinite(saved.result.paidBySARS)) return {};
        return saved;
    }
    static Printout feed(const Source& source, const Choices&, const Saved& saved) {
        return PrintRATaxAdvantage(source.paths.PrintDbPath, source.record.client.Name, saved.inputs, saved.result,
                                   datastore::readReportLanguage(source.paths.DefaultDbPath));
    }
};

struct EstateDutyPart {
    struct Estimated {
        tax::EstateDutyRates rates;
        tax::EstateDutyEstimate estimate;
    };
    static bool isEntered(const Assessment& client) { return client.estateDuty != assessment::EstateDuty{}; }
    static std::optional<Estimated> result(const Source& source) {
        Estimated estimated{tax::readEstateDutyRates(source.paths.DefaultDbPath), {}};
        estimated.estimate = estimateEstateDuty(source.record.estateDuty, estimated.rates);
        if (!estimated.estimate.isFinite()) return {};
        return estimated;
    }
    static Printout feed(const Source& source, const Choices&, const Estimated& estimated) {
        return feedEstateDuty(source.paths.PrintDbPath, source.record.client.Name, source.record.estateDuty,
                              estimated.rates, estimated.estimate);
    }
};

struct CapitalGainsPart {
    struct Year {
        Assessment client; ///< with the first asset worked out
        tax::CapitalGainReportOptions options;
    };
    /// A new asset in which nothing was typed is no entry.
    static bool isEntered(const Assessment& client) {
        assessment::CapitalGains gains = client.capitalGains;
        tax::AssetList(gains).dropEmptyLast();
        return gains != assessment::CapitalGains{};
    }
    /// As opened: the first asset is shown and so worked out; the others have the gains that they were saved with.
    static std::optional<Year> result(const Source& source) {
        Year year{source.record, {}};
        assessment::CapitalGains& gains = year.client.capitalGains;
        tax::AssetList list(gains);
        const tax::YearTotals totals = list.ADDITCGTCALC();
        year.options.results = CGTTotalCalc(annualGain(gains, totals, year.client.details.Deceased), {});
        year.options.CurrentAsset = list.CurrentAsset();
        if (!tax::isPrintable(gains, list.shown())) return {};
        return year;
    }
    static std::vector<Printout> feed(const Source& source, const Choices& choices, Year year) {
        // Without assets the known gains are all that the part has.
        year.options.knownGains = choices.contains(Choice::knownGains) || year.client.capitalGains.assets.empty();
        return feedCapitalGains(source.paths.PrintDbPath, year.client, year.options);
    }
    static std::string remark(const Source& source) {
        const assessment::CapitalGains& stored = source.record.capitalGains;
        assessment::CapitalGains present = stored;
        for (assessment::CGTAssetRecord& asset : present.assets)
            tax::workOut(asset);
        if (stored.ItemiseAdditCapGain == 1) tax::takeItemisedGains(present, stored.trustOther);
        std::vector<std::string> sentences;
        if (const std::string others = differingAssets(stored, present); !others.empty())
            sentences.push_back(
                "The capital gains stored with these assets are not those that their own figures give: " + others +
                ".");
        present.assets = stored.assets;
        if (present != stored)
            sentences.emplace_back("The known capital gains stored are not the sum of their own list.");
        if (stored.CarryOverCapGainPrev > 0)
            sentences.emplace_back("The capital loss brought forward that is stored is above 0 and counts as a gain.");
        return joined(sentences);
    }
    /// Their numbers: "2", or "1, 3, 4".
    static std::string differingAssets(const assessment::CapitalGains& stored,
                                       const assessment::CapitalGains& present) {
        std::string numbers;
        for (std::size_t i = 0; i < stored.assets.size(); ++i)
            if (stored.assets[i] != present.assets[i]) numbers += (numbers.empty() ? "" : ", ") + std::to_string(i + 1);
        return numbers;
    }
};

struct LumpSumsPart {
    static bool isEntered(const Assessment& client) {
        assessment::LumpSums amounts = client.lumpSums;
        amounts.FstLumpTaken = 0;
        return amounts != assessment::LumpSums{};
    }
    static std::optional<tax::LumpSumTax> result(const Source& source) {
        return tax::LumpSumCalc(source.record.lumpSums);
    }
    static Printout feed(const Source& source, const Choices&, const tax::LumpSumTax& result) {
        return LumpSumsPrint(source.paths.PrintDbPath, source.record.client.Name, source.record.lumpSums, result);
    }
};

/// The tax of a month stands on its screen alone.
struct MonthlyTaxPart {
    static std::string whyNot(const Source& source) { return source.month ? "" : nothingOnScreen; }
    static void print(const Source& source, const Choices&, const Print& print) {
        if (source.month) print(feedMonthlyReport(source.paths.PrintDbPath, source.record.client.Name, *source.month));
    }
};

/// The figures of a travel claim are kept until another client comes.
struct TravelClaimPart {
    static std::string whyNot(const Source& source) {
        if (source.record.car != assessment::CarAll{}) return {};
        return nothingOnScreen;
    }
    static void print(const Source& source, const Choices&, const Print& print) {
        const assessment::CarAll& car = source.record.car;
        print(PrintCarAll1(source.paths.PrintDbPath, source.record.client.Name, car, tax::travelClaim(car),
                           datastore::readReportLanguage(source.paths.DefaultDbPath)));
    }
};

struct QuickTaxPart {
    static bool isEntered(const Assessment& client) { return client.tax.Salary != 0 || client.tax.Age != 0; }
    static std::optional<tax::QuickTax> result(const Source& source) {
        assessment::KwikTax income = source.record.tax;
        return tax::quickTax(income);
    }
    static Printout feed(const Source& source, const Choices&, const tax::QuickTax& result) {
        return feedQuickTaxReport(source.paths.PrintDbPath, source.record.client.Name, source.record.tax, result);
    }
};

} // namespace

std::vector<Part> taxParts() {
    return {
        partOf<RetirementFundingPart>("retirementFunding", "Advantage of Retirement Funding"),
        partOf<EstateDutyPart>("estateDuty", "Estate Duty Estimator"),
        partOf<CapitalGainsPart>("capitalGains", "Capital Gains Tax", {Choice::knownGains}, CapitalGainsPart::remark),
        partOf<LumpSumsPart>("lumpSums", "Tax on Lump Sums"),
        {"monthlyTax", "PAYE Monthly Calculation", {}, MonthlyTaxPart::whyNot, MonthlyTaxPart::print},
        {"travelClaim", "Travel Claim", {}, TravelClaimPart::whyNot, TravelClaimPart::print},
        partOf<QuickTaxPart>("quickTax", "QuickTax"),
    };
}

} // namespace clientfile
