#include "reports/frmHeadFoot.h"

#include "assessment/tables.h"
#include "datastore/headfoot.h"
#include "datastore/paths.h"
#include "screenkit/trouble.h"

namespace reports {

using namespace screenkit;

frmHeadFoot::frmHeadFoot(Workplace& workplace)
    : Screen(workplace, "frmHeadFoot", "Header & Footer Setup", m_linesChanged) {
    guarded(workplace.desk, tr("read the header and footer lines"),
            [&] { m_lines = datastore::readHeadFoot(workplace.paths); });
    auto* ok = button("cmdOk", "&OK", [this] { cmdOk_Click(); });
    body(column({lines("sitxEdit1", m_lines.HeaderV, "These four lines will apear on all printouts as a Header."),
                 lines("sitxEdit2", m_lines.FootV, "These four lines will apear on all printouts as a Footer."),
                 spring(), row({spring(), ok})}));
    defaultButton(ok);
}

Item frmHeadFoot::lines(const QString& name, std::array<std::string, 4>& lines, const QString& noteText) {
    const bool header = name == "sitxEdit1";
    std::vector<FormRow> rows;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto number = static_cast<int>(i);
        rows.emplace_back(tr("Line &%1").arg(number + (header ? 1 : 5)),
                          text(QString("%1(%2)").arg(name).arg(number), lines[i],
                               assessment::sizeOf(assessment::headFootTable(), &m_lines, lines[i]), 60));
    }
    return group(header ? "fraHeader" : "fraFooter", header ? tr("Header") : tr("Footer"),
                 column({note(noteText), form(rows)}));
}

void frmHeadFoot::cmdOk_Click() {
    if (m_linesChanged != 1) return drop();
    const Answer answer =
        m_work.desk.box(BoxStyle::question, "Changes have been made to the Header/Footer. Do you want to save them. ?",
                        "Header/Footer Changes !", Buttons::yesNoCancel);
    if (answer == Answer::cancel) {
        static_cast<TextField*>(firstField())->takeFocus();
        return;
    }
    if (answer == Answer::yes)
        datastore::writeHeadFoot(m_work.paths, m_lines);
    else
        m_work.desk.tell(BoxStyle::warning,
                         "WARNING CHANGES HAVE NOT BEEN SAVED BUT WILL STILL APPEAR ON PRINTOUTS UNTIL PROGRAMME IS "
                         "EXITED ! ",
                         "WARNING CHANGES");
    drop();
}

} // namespace reports
