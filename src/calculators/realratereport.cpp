#include "calculators/realratereport.h"

namespace calculators {

namespace {

constexpr const char* title = "Real Rate of Return";

std::string noteOn(const RealRate& result) {
    return result.answer == RealRate::Answer::unreached ? unreachedSentence : "";
}

} // namespace

datastore::Printout feedRealRate(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::RRROld& inputs, const RealRate& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("RRR", {{"SingPremLump", inputs.SingPremLump},
                         {"MonPrem", inputs.MonPrem},
                         {"Period", static_cast<double>(inputs.Period)},
                         {"AnnEsc", inputs.AnnEsc},
                         {"MatVal", inputs.MatVal},
                         {"TotPremPaid", result.netPaid},
                         {"RRR", result.found.rate},
                         {"RateNote", noteOn(result)}});
    feed.commit();
    return {"\\rrr.rpt", title};
}

datastore::Printout feedRealRate(const std::filesystem::path& printDbPath, const std::string& client,
                                 const assessment::RRRNew& inputs, const RealRate& result) {
    datastore::PrintFeed feed(printDbPath, client);
    feed.replace("RRR", {{"RRRNEWIntLumpInv", inputs.RRRNEWIntLumpInv},
                         {"RRRNEWPeriod", inputs.RRRNEWPeriod},
                         {"RRRNEWMaturityVal", inputs.RRRNEWMaturityVal},
                         {"RegMpay1", inputs.RegMpay1},
                         {"RegMpay2", inputs.RegMpay2},
                         {"RegMpay3", inputs.RegMpay3},
                         {"RegMpay4", inputs.RegMpay4},
                         {"PayEsc1", inputs.PayEsc1},
                         {"PayEsc2", inputs.PayEsc2},
                         {"PayEsc3", inputs.PayEsc3},
                         {"PayEsc4", inputs.PayEsc4},
                         {"RegMinc1", inputs.RegMinc1},
                         {"RegMinc2", inputs.RegMinc2},
                         {"RegMinc3", inputs.RegMinc3},
                         {"RegMinc4", inputs.RegMinc4},
                         {"IncEsc1", inputs.IncEsc1},
                         {"IncEsc2", inputs.IncEsc2},
                         {"IncEsc3", inputs.IncEsc3},
                         {"IncEsc4", inputs.IncEsc4},
                         {"RegMpayDet1", inputs.RegMpayDet1},
                         {"RegMpayDet2", inputs.RegMpayDet2},
                         {"RegMpayDet3", inputs.RegMpayDet3},
                         {"RegMpayDet4", inputs.RegMpayDet4},
                         {"RegMincDet1", inputs.RegMincDet1},
                         {"RegMincDet2", inputs.RegMincDet2},
                         {"RegMincDet3", inputs.RegMincDet3},
                         {"RegMincDet4", inputs.RegMincDet4},
                         {"TotInvMon", result.payments},
                         {"TotMonIncDrawn", result.incomes},
                         {"TotPremPaid1", result.profit},
                         {"RRR", result.found.rate},
                         {"RateNote", noteOn(result)}});
    feed.commit();
    return {"\\rrrN.rpt", title};
}

} // namespace calculators
