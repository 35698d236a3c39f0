#include "quotes/statements.h"

#include "base/numberformat.h"

namespace quotes {

namespace {

std::string trail(double percent) {
    return "Trail commission equal to one twelfth of  " + base::plainNumber(percent) +
           "% of portfolio value will be paid monthly.";
}

std::string ofSingle(const Quote& quote, const char* investment) {
    return "A once-off commission amount of " + base::formatNumber(quote.InitLump, "# ### ###") +
           " is payable on the single " + investment;
}

std::string ofRegular(double percent, const char* premiums) {
    return "Commission equal to " + base::formatNumber(percent, "##.###") + "% of " + premiums + " paid will apply.";
}

} // namespace

Statements commissionStatements(const KwikQuotes& inputs, const FundDefaults& funds, const Quote& quote) {
    Statements texts;
    if (quote.QuoteEmpty || quote.kind == Kind::bank) return texts;
    const bool isSingle = inputs.LUMPSUM > 0;
    const bool isRegular = inputs.ANNUALPAYMENT > 0 || inputs.regularpayment > 0;
    const bool isPaid = isSingle || isRegular;
    const auto say = [&texts](int number, bool isSo, const std::string& text) {
        if (isSo) texts[static_cast<std::size_t>(number - 1)] = text;
    };
    say(1, true,
        "All commissions and loadings, where applicable, were taken into account in the calculations used to determine "
        "the Estimated Maturity Value shown.");
    say(2, true, "The following commissions are payable…");
    switch (*quote.kind) {
    case Kind::endowment:
        say(3, isSingle && funds.ESPremCom > 0, ofSingle(quote, "premium investment."));
        say(4, isRegular && funds.EAPremCom > 0, ofRegular(funds.EAPremCom, "regular premiums"));
        say(7, isPaid && funds.EAComPortVal > 0, trail(funds.EAComPortVal));
        break;
    case Kind::retirement:
        say(3, isSingle && funds.RSPremCom > 0, ofSingle(quote, "investment made."));
        say(4, isRegular && funds.RAPremCom > 0, ofRegular(funds.RAPremCom, "premiums"));
        say(8, isPaid && funds.RAComPortVal > 0, trail(funds.RAComPortVal));
        break;
    case Kind::unitTrust:
        say(3, isPaid && funds.UTCOM > 0,
            "A commission amount, equal to " + base::plainNumber(funds.UTCOM) + " % of investment made, is payable.");
        say(4, isPaid && funds.UTAComPortVal > 0, trail(funds.UTAComPortVal));
        break;
    case Kind::bank: break;
    }
    return texts;
}

} // namespace quotes
