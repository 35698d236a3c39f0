#pragma once

#include <QByteArray>
#include <QPageLayout>

#include "reports/graphdata.h"
#include "reports/output.h"

class QPagedPaintDevice;

namespace reports {

/// The file's bytes: the graph on one A4 page (PNG and SVG: a picture of that page), dark on white.
QByteArray exportedGraph(const Graph& graph, GraphFormat format, QPageLayout::Orientation orientation);

/// Draws the graph on the device's page, whose size and orientation are kept. False if drawing cannot begin.
bool printGraph(const Graph& graph, QPagedPaintDevice& device);

} // namespace reports
