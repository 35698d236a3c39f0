#pragma once

#include <QByteArray>
#include <vector>

#include "reports/content.h"

// The parts of a text document around its text.

namespace reports {

/// The start of one of the document's files, such as "document-content", with all namespaces.
QByteArray odtRoot(const char* kind);
QByteArray odtFonts();

/// The contents of a report's text, one, or of the sections of a document.
using OdtContents = std::vector<const Content*>;

/// The page style of a section, from 0, and the bookmark where it begins.
QString odtSectionName(std::size_t section);

/// styles.xml: the paper, with header lines at the top and footer lines and page numbers at the bottom of each page, in
/// a page style for each section.
QByteArray odtFrame(const OdtContents& contents);
QByteArray odtMeta(const Content& content);
QByteArray odtSettings();
QByteArray odtManifest();

} // namespace reports
