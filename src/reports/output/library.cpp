#include "reports/export.h"
#include "reports/output.h"
#include "reports/output/graphexport.h"
#include "reports/output/graphview.h"
#include "reports/output/pdfproperties.h"

namespace reports {

namespace {

GraphPane newGraphPane() {
    auto* view = new GraphView;
    return {view, [view](const Graph& graph) { view->show(graph); }};
}

} // namespace

/// The symbol that the program looks up after loading the library.
extern "C" const Output marlowbeckOutput{newGraphPane, exportedGraph, printGraph, withProperties, toOdt, toXlsx};

} // namespace reports
