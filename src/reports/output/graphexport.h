#pragma once

#include <QByteArray>
#include <QPageLayout>

#include "reports/graphdata.h"
#include "reports/output.h"

class QPagedPaintDevice;

namespace reports {

/// The file's bytes: the graph on one A4 page (a picture of it for PNG and SVG), dark on white.
QByteArray exportedGraph(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation);

/// Draws the graph over the device's page, which keeps its own size and orientation. False if it cannot be begun.
bool printGraph(const Graph& graph, QPagedPaintDevice& device);

} // namespace reports
