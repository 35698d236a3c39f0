#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <functional>
#include <vector>

class QPagedPaintDevice;
class QWidget;

namespace reports {

struct Content;
struct Graph;
struct PdfHeading;

enum class GraphFormat { png, svg, pdf };

/// A graph on the screen: a widget for the caller to place, and how it is given what it shows.
struct GraphPane {
    QWidget* widget;
    std::function<void(const Graph&)> show;
};

/// What draws charts, and writes text documents, workbooks and the properties of PDF files. It lives in a library of
/// its own, since the toolkit's charts and the workbook writer bring more to load and relocate than all the rest of the
/// program, and no start needs them.
struct Output {
    GraphPane (*newGraphPane)();
    QByteArray (*exportedGraph)(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation);
    bool (*printGraph)(const Graph& graph, QPagedPaintDevice& device);
    QByteArray (*withProperties)(const QByteArray& pdf, const QString& title, const QString& author,
                                 const std::vector<PdfHeading>& headings);
    QByteArray (*toOdt)(const Content& content);
    QByteArray (*toXlsx)(const Content& content);
};

/// The library, loaded when it is first asked for. Throws store::Error if it does not lie beside the program.
const Output& output();

} // namespace reports
