#include "reports/frmGraph.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "reports/graphexport.h"
#include "reports/graphview.h"
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

} // namespace

frmGraph::frmGraph(screenkit::Desk& desk, QWidget* parent) : QWidget(parent), m_desk(desk), m_view(new GraphView) {
    setObjectName("frmGraph");
    setWindowTitle("Graph");
    m_view->setObjectName("ChartFX1");
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_view, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(orientationFrame());
    row->addStretch();
    addButton(*row, "cmdExport", "&Export", &frmGraph::saveAs);
    addButton(*row, "cmdPrint", "&Print", &frmGraph::print);
    addButton(*row, "cmdOK", "&OK", &frmGraph::finish);
    column->addLayout(row);
    setFocusProxy(m_view);
}

QWidget* frmGraph::orientationFrame() {
    auto* frame = new QGroupBox("Print :");
    frame->setObjectName("Frame1");
    auto* row = new QHBoxLayout(frame);
    const auto add = [&](const char* name, const char* caption, QPageLayout::Orientation orientation) {
        auto* option = new QRadioButton(caption);
        option->setObjectName(name);
        option->setAccessibleDescription("Page orientation of the printed or exported graph");
        option->setChecked(orientation == m_orientation);
        connect(option, &QRadioButton::toggled, this, [this, orientation](bool on) {
            if (on) m_orientation = orientation;
        });
        row->addWidget(option);
    };
    add("Option1_0", "&Landscape", QPageLayout::Landscape);
    add("Option1_1", "Po&rtrait", QPageLayout::Portrait);
    return frame;
}

void frmGraph::addButton(QHBoxLayout& row, const char* name, const char* caption, void (frmGraph::*pressed)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, pressed);
    row.addWidget(button, 0, Qt::AlignBottom);
}

void frmGraph::draw(const Graph& graph) {
    m_graph = graph;
    m_view->show(m_graph);
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
    if (!m_desk.hasPrinter()) return m_desk.tell(BoxStyle::warning, "No printer is installed.", "Print");
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(m_graph.title).trimmed());
    printer.setPageOrientation(m_orientation);
    if (!m_desk.choosePrinter(printer)) return;
    if (!printGraph(m_graph, printer))
        m_desk.tell(BoxStyle::critical, "The printer did not accept the graph.", "Print");
}

// The file dialog has asked about the name that was typed, not about the one with the ending.
bool frmGraph::mayReplace(const QString& name) {
    const QString text = QFileInfo(name).fileName() + " already exists. Replace it?";
    return m_desk.box(screenkit::BoxStyle::question, text, exportTitle, screenkit::Buttons::yesNo,
                      screenkit::Answer::no) == screenkit::Answer::yes;
}

void frmGraph::saveAs() {
    const QString suggested = QString::fromStdString(fileNameOf(m_graph)) + ".png";
    const auto chosen =
        m_desk.fileToSave(exportTitle, suggested, {"PNG picture (*.png)", "SVG drawing (*.svg)", "PDF (*.pdf)"});
    if (!chosen) return;
    const QString name = withPictureEnding(*chosen);
    if (name != *chosen && QFileInfo::exists(name) && !mayReplace(name)) return;
    const QByteArray bytes = exportedGraph(m_graph, graphFormatOf(name), m_orientation);
    try {
        store::writeFile(name.toStdString(), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (const store::Error& error) {
        m_desk.tell(screenkit::BoxStyle::critical, QString::fromStdString(error.message()), exportTitle);
    }
}

} // namespace reports
