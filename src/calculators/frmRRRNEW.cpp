#include "calculators/frmRRRNEW.h"

#include "assessment/tables.h"

namespace calculators {

using namespace screenkit;

frmRRRNEW::frmRRRNEW(Workplace& workplace) : RealRateScreen(workplace, "frmRRRNEW", workplace.record.rrrNew) {
    auto& in = m_inputs;
    auto* invested = investment();
    auto* payments = lines("Monthly payments", "Payment ", "RegMpay", "PayEsc",
                           {{{in.RegMpay1, in.PayEsc1, in.RegMpayDet1},
                             {in.RegMpay2, in.PayEsc2, in.RegMpayDet2},
                             {in.RegMpay3, in.PayEsc3, in.RegMpayDet3},
                             {in.RegMpay4, in.PayEsc4, in.RegMpayDet4}}});
    auto* incomes = lines("Monthly incomes", "Income ", "RegMinc", "IncEsc",
                          {{{in.RegMinc1, in.IncEsc1, in.RegMincDet1},
                            {in.RegMinc2, in.IncEsc2, in.RegMincDet2},
                            {in.RegMinc3, in.IncEsc3, in.RegMincDet3},
                            {in.RegMinc4, in.IncEsc4, in.RegMincDet4}}});
    body(column({row({invested, results(), spring()}), payments, incomes, spring(),
                 buttonLine({opener("cmdRRROLD", "Single premium/&lumpsum", "frmRRROLD")})}));
    prints();
}

QLayout* frmRRRNEW::investment() {
    return column({form({{"&Initial lump sum", number("numIntLumpInv", m_inputs.RRRNEWIntLumpInv, money)},
                         {"P&eriod", number("numPeriod", m_inputs.RRRNEWPeriod, months()), "months"},
                         {"Ma&turity value", number("numMaturityVal", m_inputs.RRRNEWMaturityVal, money)}}),
                   unreached(), spring()});
}

QLayout* frmRRRNEW::results() {
    return form({{"Total monthly payments", answer("numTotInvMon", m_result.payments)},
                 {"Total income drawn", answer("numTotMonIncDrawn", m_result.incomes)},
                 {"Profit", answer("numTotPremPaid", m_result.profit)},
                 {"Real rate of return (nominal rate)", rate(), "% a year"}});
}

QWidget* frmRRRNEW::lines(const QString& title, const QString& head, const QString& stem, const QString& escalationStem,
                          const std::array<Line, 4>& of) {
    std::vector<FormRow> rows;
    for (const Line& line : of) {
        const QString number = QString::number(rows.size() + 1);
        auto* amount = Screen::number("num" + stem + number, line.amount, money);
        auto* escalation = Screen::number("num" + escalationStem + number, line.escalation, percent);
        if (stem == "RegMpay") writesBack(escalation);
        const int size = assessment::sizeOf(assessment::dataTable(), &m_work.record, line.remark);
        auto* remark = text("txt" + stem + "Det" + number, line.remark, size, 32);
        rows.emplace_back(head + number, row({amount, labelled("a month, rising", escalation),
                                              labelled("% a year. Remark", remark), spring()}));
        escalation->setAccessibleName(head + number + " escalation");
        remark->setAccessibleName(head + number + " remark");
    }
    return group("fra" + stem, title, form(rows));
}

} // namespace calculators
