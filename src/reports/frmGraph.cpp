#include "reports/frmGraph.h"

#include <QFileInfo>
#include <QPrinter>

#include "reports/report.h"
#include "screenkit/desk.h"
#include "store/error.h"
#include "store/files.h"

namespace reports {

namespace {

const char* const exportTitle = "Export Graph";

int amortisedYears(int shape, int wholeYears, int lastYear) { return shape == 1 ? wholeYears : lastYear; }

// Without an ending that names a format no other program would know what the file holds.
QString withPictureEnding(const QString& name) {
    const QString ending = QFileInfo(name).suffix().toLower();
    return QStringList{"png", "svg", "pdf"}.contains(ending) ? name : name + ".png";
}

// PNG for any ending but the other two.
GraphFormat formatOf(const QString& fileName) {
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == "svg") return GraphFormat::svg;
    return ending == "pdf" ? GraphFormat::pdf : GraphFormat::png;
}

} // namespace

frmGraph::frmGraph(screenkit::Workplace& workplace)
    : Screen(workplace, "frmGraph", "Graph", screenkit::untracked()), m_pane(output().newGraphPane()) {
    m_pane.widget->setObjectName("ChartFX1");
    auto* orientations = options("Option1", {"&Landscape", "Po&rtrait"}, m_portrait, {}, Qt::Horizontal);
    using screenkit::Item;
    body(screenkit::column({Item(m_pane.widget, 1),
                            screenkit::row({screenkit::group("Frame1", "Print :", orientations), screenkit::spring(),
                                            button("cmdExport", "&Export", [this] { saveAs(); }),
                                            button("cmdPrint", "&Print", [this] { print(); }), okButton()})}));
}

QWidget* frmGraph::firstField() { return m_pane.widget; }

void frmGraph::draw(const Graph& graph) {
    m_graph = graph;
    m_pane.show(m_graph);
}

void frmGraph::NAEDUAmortGraph(Yearly capital, Yearly interest, Yearly required, int count) {
    draw(makeGraph(graphDescription(GraphKind::NAEDUAmort), {capital, interest, required}, count));
}

void frmGraph::LivAnnGraph(Yearly capital, Yearly income, int count) {
    draw(makeGraph(graphDescription(GraphKind::LivAnn), {capital, income}, count));
}

void frmGraph::EMVGraph(std::string_view typeInvest, GraphPeriod period, Yearly invested, Yearly growth, Yearly value,
                        Yearly reinvested, int count) {
    draw(makeGraph(investmentGraph(typeInvest, period), {invested, growth, value, reinvested}, count));
}

// The needs analyses hand over what is available before what is required; the legend has them the other way about.

void frmGraph::NADAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count) {
    draw(makeGraph(graphDescription(GraphKind::NADAmort), {capital, interest, required, available}, count));
}

void frmGraph::NADISAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count) {
    draw(makeGraph(graphDescription(GraphKind::NADISAmort), {capital, interest, required, available}, count));
}

void frmGraph::NARAAmortGraph(Yearly capital, Yearly interest, Yearly available, Yearly required, int count) {
    draw(makeGraph(graphDescription(GraphKind::NARAAmort), {capital, interest, required, available}, count));
}

void frmGraph::LoanAmortGraph(Yearly balance, Yearly capital, Yearly interest, int AmortShape, int AmortYears,
                              int lastYear) {
    draw(makeGraph(graphDescription(GraphKind::LoanAmort), {balance, capital, interest},
                   amortisedYears(AmortShape, AmortYears, lastYear)));
}

void frmGraph::IncFromSharesAmortGraph(Yearly capital, Yearly drawn, Yearly tax, int count) {
    draw(makeGraph(graphDescription(GraphKind::IncFromSharesAmort), {capital, drawn, tax}, count));
}

void frmGraph::EMVAmortGraph(Yearly capital, Yearly interest, Yearly required, int count) {
    draw(makeGraph(graphDescription(GraphKind::EMVAmort), {capital, interest, required}, count));
}

void frmGraph::DCAmortGraph(Yearly balance, Yearly capital, Yearly interest, int DCShape, int DCYears, int lastYear) {
    draw(makeGraph(graphDescription(GraphKind::DCAmort), {balance, capital, interest},
                   amortisedYears(DCShape, DCYears, lastYear)));
}

void frmGraph::print() {
    using screenkit::BoxStyle;
    if (!m_work.desk.hasPrinter()) return m_work.desk.tell(BoxStyle::warning, "No printer is installed.", "Print");
    QPrinter& printer = m_work.reports.printer(); // the session's: what is chosen here holds for reports too
    printer.setFullPage(false);
    printer.setDocName(QString::fromStdString(m_graph.title).trimmed());
    printer.setPageOrientation(orientation());
    if (!m_work.desk.choosePrinter(printer)) return;
    if (!output().printGraph(m_graph, printer))
        m_work.desk.tell(BoxStyle::critical, "The printer did not accept the graph.", "Print");
}

// The file dialog has asked about the name that was typed, not about the one with the ending.
bool frmGraph::mayReplace(const QString& name) {
    const QString text = QFileInfo(name).fileName() + " already exists. Replace it?";
    return m_work.desk.box(screenkit::BoxStyle::question, text, exportTitle, screenkit::Buttons::yesNo,
                           screenkit::Answer::no) == screenkit::Answer::yes;
}

void frmGraph::saveAs() {
    const QString suggested = QString::fromStdString(fileNameOf(m_graph)) + ".png";
    const auto chosen =
        m_work.desk.fileToSave(exportTitle, suggested, {"PNG picture (*.png)", "SVG drawing (*.svg)", "PDF (*.pdf)"});
    if (!chosen) return;
    const QString name = withPictureEnding(*chosen);
    if (name != *chosen && QFileInfo::exists(name) && !mayReplace(name)) return;
    const QByteArray bytes = output().exportedGraph(m_graph, formatOf(name), orientation());
    try {
        store::writeFile(name.toStdString(), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (const store::Error& error) {
        m_work.desk.tell(screenkit::BoxStyle::critical, QString::fromStdString(error.message()), exportTitle);
    }
}

} // namespace reports
