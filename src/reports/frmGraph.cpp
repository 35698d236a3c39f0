#include "reports/frmGraph.h"

#include <QFileInfo>
#include <QLabel>
#include <QPrinter>

#include "reports/export.h"
#include "reports/output/pdfproperties.h"
#include "reports/report.h"
#include "screenkit/desk.h"
#include "screenkit/savefile.h"

namespace reports {

namespace {

int amortisedYears(int shape, int wholeYears, int lastYear) { return shape == 1 ? wholeYears : lastYear; }

GraphFormat graphFormatOf(const QString& fileName) {
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == "svg") return GraphFormat::svg;
    return ending == "pdf" ? GraphFormat::pdf : GraphFormat::png;
}

} // namespace

frmGraph::frmGraph(screenkit::Workplace& workplace)
    : Screen(workplace, "frmGraph", "Graph", screenkit::untracked()), m_pane(output().newGraphPane()),
      m_savedLine(screenkit::newSavedLine(workplace.desk)) {
    m_pane.widget->setObjectName("ChartFX1");
    auto* orientations = options("Option1", {"&Landscape", "Po&rtrait"}, m_portrait, {}, Qt::Horizontal);
    using screenkit::Item;
    body(screenkit::column({Item(m_pane.widget, 1),
                            screenkit::row({screenkit::group("Frame1", "Print :", orientations), screenkit::spring(),
                                            button("cmdExport", "&Export", [this] { saveAs(); }),
                                            button("cmdPrint", "Prin&t", [this] { print(); }), okButton()}),
                            Item(m_savedLine)}));
    m_savedLine->hide();
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

// The needs analyses pass the available income before the required one; the legend has the reverse order.

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
    QPrinter& printer = m_work.reports.printer(); // the session's, so a choice made here also applies to reports
    printer.setFullPage(false);
    printer.setDocName(QString::fromStdString(m_graph.title).trimmed());
    printer.setPageOrientation(orientation());
    if (!m_work.desk.choosePrinter(printer)) return;
    if (!output().printGraph(m_graph, printer))
        m_work.desk.tell(BoxStyle::critical, "The printer did not accept the graph.", "Print");
}

void frmGraph::saveAs() {
    const QString client = QString::fromStdString(m_work.record.client.Name);
    const QString proposed = proposedFileName(client, QString::fromStdString(m_graph.title), ".png");
    const auto name = screenkit::askWhereToSave(m_work.desk, "Export Graph", proposed,
                                                {"PNG picture (*.png)", "SVG drawing (*.svg)", "PDF (*.pdf)"});
    if (!name) return;
    const auto bytes = [&] {
        const GraphFormat format = graphFormatOf(*name);
        const QByteArray picture = output().exportedGraph(m_graph, format, orientation());
        if (format != GraphFormat::pdf) return picture;
        const QString title = documentTitle(QString::fromStdString(m_graph.title).trimmed(), client);
        return output().withProperties(picture, {.title = title, .author = m_work.reports.practice()});
    };
    if (!screenkit::saveBytes(m_work.desk, "export the graph", *name, bytes)) return;
    screenkit::showSaved(*m_savedLine, *name);
    m_savedLine->show();
}

} // namespace reports
