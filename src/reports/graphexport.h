#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>

#include "reports/graphdata.h"

class QPagedPaintDevice;

namespace reports {

enum class GraphFormat { png, svg, pdf };

/// The file's bytes: the graph on one A4 page (a picture of it for PNG and SVG), dark on white.
QByteArray exportedGraph(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation);

/// The format that a file name's ending asks for, PNG for any other.
GraphFormat graphFormatOf(const QString& fileName);

/// Draws the graph over the device's page, which keeps its own size and orientation. False if it cannot be begun.
bool printGraph(const Graph& graph, QPagedPaintDevice& device);

} // namespace reports
