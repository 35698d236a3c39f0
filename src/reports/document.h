#pragma once

#include <QDate>
#include <QString>
#include <filesystem>
#include <functional>
#include <vector>

#include "datastore/printfeed.h"
#include "reports/export.h"
#include "store/progress.h"

namespace reports {

/// Runs a report on the rows just fed, as the next section of a document.
using PrintSection = std::function<void(const datastore::Printout&)>;

/// A part of a document: one report or several, one after the other.
struct Chapter {
    QString title; ///< in the contents and the outline; empty for one that stands in neither, such as the cover
    /// Feeds the print database and prints, report by report.
    std::function<void(const PrintSection&)> print;
};

/// What a document is made from.
struct DocumentPlan {
    std::filesystem::path definitions;   ///< the folder of the report definitions
    std::filesystem::path printDatabase; ///< of this document alone
    QDate date;
    QString title;                 ///< of the document, "Client file"
    QString client;                ///< display name
    QString fileClient, fileTitle; ///< of the proposed file name, see Report
    std::vector<Chapter> chapters; ///< a cover first
    bool hasContents = true; ///< a table of contents behind the first chapter, if that is a cover, else before all
};

/// Makes a document without a window: each report begins on a new page, with the title and the page heads that it has
/// when it is printed alone; the pages are numbered through the whole. A chapter that prints nothing is left out.
///
/// Throws store::Error for a missing or broken definition or a failed feed; its reason names the chapter. Progress may
/// cancel; then store::Cancelled is thrown.
Report makeDocument(const DocumentPlan& plan, const store::Progress& progress = {});

} // namespace reports
