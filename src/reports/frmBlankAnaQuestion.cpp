#include "reports/frmBlankAnaQuestion.h"

#include <QLabel>

#include "reports/report.h"
#include "screenkit/trouble.h"

namespace reports {

using namespace screenkit;

namespace {

struct Form {
    const char *box, *caption, *definition, *title;
};

constexpr std::array<Form, 4> forms{{
    {"chkPersonalDetails", "P&ersonal Details", "Blank Personal Detail.rpt", "Blank Personal Detail"},
    {"chkDeathDisa", "&Death/Disability", "Blank Death Disability.rpt", "Blank Death/Disability"},
    {"chkRetirement", "Re&tirement", "Blank Retirement.rpt", "Blank Retirement"},
    {"chkPoliciesInvestments", "Policies && &Investments", "Blank Policy Investments.rpt", "Policy Investments"},
}};

const NumberKind copies{"##0", true, 4,
                        whole.between(1, 99, "The number of copies is between 1 and 99.", "Incorrect Copies!").limits};

} // namespace

frmBlankAnaQuestion::frmBlankAnaQuestion(Workplace& workplace)
    : Screen(workplace, "frmBlankAnaQuestion", "Blank Analysis Questionnaires ", untracked()) {
    std::vector<CheckField*> boxes;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        boxes.push_back(check(forms[i].box, forms[i].caption, m_ticked[i]));
        untrackedField(boxes.back());
    }
    auto* number = this->number("numCopies", m_copies, copies);
    untrackedField(number);
    SpinRule rule;
    rule.floor = 1;
    rule.ceiling = 99;
    auto* view = button("cmdVR", "&View/Export report ", [this] { run(Destination::preview); });
    body(column(
        {group("fraForms", "Questionnaires", column({Item(boxes[0]), Item(boxes[1]), Item(boxes[2]), Item(boxes[3])})),
         form({{"&Number of copies", row({number, spin("spCopies", number, rule), spring()})}}),
         Item(note("This value only applies to printing directly to the printer")), spring(),
         row({view, button("cmdPD", "P&rint directly to printer ", [this] { run(Destination::printer); }), spring(),
              okButton("cmdOk")})}));
    defaultButton(view);
}

/// A job for the printer is named by its definition. If one can't be printed, the box that says why is the only one.
void frmBlankAnaQuestion::run(Destination destination) {
    const bool isPrinter = destination == Destination::printer;
    const BusyCursor busy;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        if (m_ticked[i] == 0) continue;
        if (isPrinter) m_work.reports.CopiesToPrinter = static_cast<int>(m_copies);
        const bool isDone =
            m_work.reports.run(forms[i].definition, isPrinter ? QString() : QString(forms[i].title), destination);
        if (!isDone && isPrinter) return;
    }
}

} // namespace reports
