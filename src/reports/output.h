#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <functional>

#include "store/progress.h"

class QPagedPaintDevice;
class QWidget;

namespace reports {

struct Content;
struct Graph;
struct PdfProperties;
struct Report;

enum class GraphFormat { png, svg, pdf };

/// A graph on the screen: a widget that the caller places, and the function that sets its content.
struct GraphPane {
    QWidget* widget;
    std::function<void(const Graph&)> show;
};

/// Draws charts, and writes text documents, workbooks and PDF properties. A library of its own, because Qt's charts and
/// the workbook writer take longer to load than all the rest of the program, and start-up does not need them.
struct Output {
    GraphPane (*newGraphPane)();
    QByteArray (*exportedGraph)(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation);
    bool (*printGraph)(const Graph& graph, QPagedPaintDevice& device);
    QByteArray (*withProperties)(const QByteArray& pdf, const PdfProperties& properties);
    QByteArray (*toOdt)(const Report& report, const store::Progress& progress);
    QByteArray (*toXlsx)(const Content& content);
};

/// The library, loaded on first use. Throws store::Error if it is missing beside the program.
const Output& output();

} // namespace reports
