#include "clientfile/frmClientFile.h"

#include <QLabel>
#include <QTabWidget>
#include <algorithm>

#include "clientfile/partlists.h"
#include "datastore/ownprintdb.h"
#include "reports/report.h"
#include "screenkit/longwork.h"
#include "screenkit/savefile.h"
#include "screenkit/trouble.h"
#include "tax/frmMonthly.h"

namespace clientfile {

using namespace screenkit;

namespace {

constexpr int longestText = 20000;   // characters, some ten pages
constexpr int longestPassword = 127; // as PDF allows
const char* const title = "Client file";

} // namespace

frmClientFile::frmClientFile(Workplace& workplace)
    // The texts have no flag of their own: an edit is a change of the client at once.
    : Screen(workplace, "frmClientFile", "Client File as One Document", workplace.record.ClientChanged) {
    auto* pages = tabs("tabClientFile", {{"&Client and analyses", frontPage()},
                                         {"Calc&ulations", calculationsPage()},
                                         {"&Tax", taxPage()},
                                         {"Your own te&xts", wordsPage()}});
    m_passwordField =
        text("txtPassword", {[this] { return m_password; }, [this](const QString& typed) { m_password = typed; }},
             longestPassword, 20);
    unsavedField(m_passwordField);
    m_saved = newSavedLine(m_work.desk);
    m_remarks = note({});
    m_remarks->setObjectName("lblRemarks");
    m_remarks->hide();
    auto* password = form({{"Password for the &mail", m_passwordField, "(PDF only; leave it empty for none)"}});
    body(column({Item(pages, 1), m_remarks, row({password, Item(m_saved, 1)}), buttons()}));
}

// ---- the parts

CheckField* frmClientFile::tickOf(const QString& name, const QString& caption, const QString& setting) {
    auto* tick = check(name, caption,
                       {[this, setting] { return m_ticks.has(setting) ? 1 : 0; },
                        [this, setting](int on) { m_ticks.set(setting, on == 1); }});
    untrackedField(tick);
    return tick;
}

Item frmClientFile::lineOf(const Part& part) {
    const std::size_t index = m_lines.size();
    const auto changed = [this, index](bool) { show(m_lines[index]); };
    auto* tick = tickOf(QString("chkPart(%1)").arg(part.name), QString(part.title).replace("&", "&&"), part.name);
    tick->ticked = changed;
    Line& line = m_lines.emplace_back(Line{.part = &part, .tick = tick, .choices = {}, .why = new QLabel});
    line.why->setObjectName(QString("lblWhy(%1)").arg(part.name));
    std::vector<Item> items{tick};
    for (const Choice choice : part.choices) {
        auto* wanted = check(QString("chkChoice(%1.%2)").arg(part.name, nameOf(choice)), captionOf(choice),
                             {[this, &part, choice] { return m_ticks.has(part, choice) ? 1 : 0; },
                              [this, &part, choice](int on) { m_ticks.set(part, choice, on == 1); }},
                             changed);
        wanted->setAccessibleName(QString("%1, %2").arg(part.title, captionOf(choice)));
        untrackedField(wanted);
        line.choices.push_back(wanted);
        items.emplace_back(wanted);
    }
    items.emplace_back(line.why, 1);
    return row(items);
}

QLayout* frmClientFile::linesOf(std::size_t first, std::size_t behind) {
    std::vector<FormRow> lines;
    int width = 0;
    for (std::size_t index = first; index < behind; ++index) {
        lines.emplace_back("", lineOf(parts()[index]));
        width = std::max(width, m_lines.back().tick->sizeHint().width());
    }
    for (std::size_t index = first; index < behind; ++index)
        m_lines[index].tick->setMinimumWidth(width);
    return column({form(lines), spring()});
}

Item frmClientFile::frontPage() {
    const std::size_t own = clientParts().size() + analysisParts().size();
    m_key = new QLabel;
    m_key->setObjectName("lblKey");
    auto* front = row({tickOf("chkPart(cover)", "Cover", Ticks::cover),
                       tickOf("chkPart(contents)", "Contents", Ticks::contents), spring(), m_key});
    return column(
        {group("fraFront", "Front", front), Item(group("fraClient", "Client and analyses", linesOf(0, own)), 1)});
}

Item frmClientFile::calculationsPage() {
    const std::size_t first = m_lines.size();
    return group("fraCalculations", "Calculations", linesOf(first, first + calculatorParts().size()));
}

Item frmClientFile::taxPage() {
    const std::size_t first = m_lines.size();
    return group("fraTax", "Tax", linesOf(first, first + taxParts().size()));
}

Item frmClientFile::wordsPage() {
    assessment::FileTexts& texts = m_work.record.fileTexts;
    const auto field = [this](const char* name, std::string& place) { return memo(name, place, longestText); };
    auto* words = form({{"What the advice &rests on", field("txtBasis", texts.basis)},
                        {"Products consid&ered", field("txtConsidered", texts.considered)},
                        {"What is recommended, and wh&y", field("txtRecommendation", texts.recommendation)},
                        {"What is rep&laced, and what that costs", field("txtReplacement", texts.replacement)},
                        {"What the client dec&ided", field("txtDecision", texts.decision)}});
    return column({Item(words, 1), linesOf(m_lines.size(), parts().size())});
}

QLayout* frmClientFile::buttons() {
    return row({button("cmdAll", "Tic&k all", [this] { tickAll(true); }),
                button("cmdNone", "Tick &none", [this] { tickAll(false); }),
                button("cmdPreview", "Pre&view", [this] { preview(); }),
                button("cmdPDF", "&Save PDF", [this] { save(reports::Format::pdf); }),
                button("cmdODT", "Save O&DT", [this] { save(reports::Format::odt); }), spring(), okButton()});
}

std::shared_ptr<Source> frmClientFile::currentSource() {
    auto source = std::make_shared<Source>();
    source->record = m_work.record;
    source->paths = m_work.paths;
    source->today = today();
    if (const auto* month = qobject_cast<tax::frmMonthly*>(m_work.shell.screen("frmMonthly")))
        source->month = month->shown();
    return source;
}

void frmClientFile::filled() {
    const auto source = currentSource();
    for (Line& line : m_lines) {
        const QString why = QString::fromStdString(line.part->whyNot(*source));
        line.isPrintable = why.isEmpty();
        line.why->setText(why);
        show(line);
    }
    const bool isOnFile = m_work.record.ClientOnFile == 1;
    m_key->setText(isOnFile ? tr("Key for the command line: %1").arg(m_work.record.DCLNO) : QString());
    QStringList remarks;
    for (const Line& line : m_lines)
        if (line.isPrintable)
            if (const std::string remark = remarkOn(*line.part, *source); !remark.empty())
                remarks << QString::fromStdString(remark);
    m_remarks->setText(remarks.join("\n"));
    m_remarks->setVisible(!remarks.isEmpty());
}

void frmClientFile::show(Line& line) {
    const bool isTicked = line.tick->isChecked();
    line.tick->setEnabled(line.isPrintable);
    line.why->setVisible(!line.isPrintable);
    bool follows = true; // a choice that only refines the one before it
    for (std::size_t index = 0; index < line.choices.size(); ++index) {
        CheckField* choice = line.choices[index];
        choice->setVisible(line.isPrintable);
        choice->setEnabled(isTicked && (follows || line.part->choices[index] != Choice::monthly));
        follows = choice->isChecked();
    }
}

void frmClientFile::edited() {
    // The adviser's own part is printable with the first letter.
    Source source;
    source.record.fileTexts = m_work.record.fileTexts;
    for (std::size_t index = m_lines.size() - adviceParts().size(); index < m_lines.size(); ++index) {
        Line& line = m_lines[index];
        line.why->setText(QString::fromStdString(line.part->whyNot(source)));
        line.isPrintable = line.why->text().isEmpty();
        show(line);
    }
}

void frmClientFile::tickAll(bool on) {
    for (Line& line : m_lines) {
        m_ticks.set(line.part->name, on);
        line.tick->fill();
        show(line);
    }
}

void frmClientFile::clientReplaced() {
    m_password.clear(); // it was agreed with another client
    Screen::clientReplaced();
}

// ---- the document

std::shared_ptr<const reports::Report> frmClientFile::make(const Then& then) {
    const auto isTicked = [](const Line& line) { return line.isPrintable && line.tick->isChecked(); };
    if (std::none_of(m_lines.begin(), m_lines.end(), isTicked)) {
        m_work.desk.tell(BoxStyle::warning, tr("There is nothing to print. Tick at least one part that is not greyed."),
                         title);
        return {};
    }
    const datastore::OwnPrintDb printDb(m_work.paths);
    const auto source = currentSource();
    source->paths.PrintDbPath = printDb.path();
    auto report = std::make_shared<reports::Report>();
    const auto work = [&](const store::Progress& progress) {
        *report = reports::makeDocument(planOf(source, m_ticks), progress);
        report->password = m_password;
        if (then) then(*report, progress);
    };
    if (!runLongWork(tr("Putting the client file together"), work)) return {};
    return report;
}

void frmClientFile::preview() {
    if (auto report = make()) m_work.reports.show(report);
}

void frmClientFile::save(reports::Format format) {
    const bool isOdt = format == reports::Format::odt;
    if (isOdt && !m_password.isEmpty()) {
        const QString question = tr("An ODT file can't carry a password. Do you want to save it without one ?");
        if (m_work.desk.box(BoxStyle::question, question, title, Buttons::yesNo, Answer::no) != Answer::yes)
            return m_passwordField->takeFocus();
    }
    const QString ending = reports::endingOf(format);
    const QString proposed = reports::proposedFileName(fileClientOf(m_work.record), fileTitleOf(today()), ending);
    const auto name =
        askWhereToSave(m_work.desk, tr("Save the client file"), proposed, reports::exportFilters({format}));
    if (!name) return;
    QByteArray bytes;
    const auto report = make([&](const reports::Report& made, const store::Progress& progress) {
        bytes = reports::exported(made, format, progress);
    });
    if (report && saveBytes(m_work.desk, tr("save the client file"), *name, [&] { return bytes; }))
        showSaved(*m_saved, *name);
}

} // namespace clientfile
