#pragma once

#include <QByteArray>

#include "reports/content.h"

// The parts of a text document around its text.

namespace reports {

/// The start of one of the document's files, such as "document-content", with all namespaces.
QByteArray odtRoot(const char* kind);
QByteArray odtFonts();

/// styles.xml: the paper, with header lines at the top and footer lines and page numbers at the bottom of each page.
QByteArray odtFrame(const Content& content);
QByteArray odtMeta(const Content& content);
QByteArray odtSettings();
QByteArray odtManifest();

} // namespace reports
