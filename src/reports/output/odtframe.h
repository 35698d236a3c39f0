#pragma once

#include <QByteArray>

#include "reports/content.h"

// The parts of a text document around its text.

namespace reports {

/// The start of one of the document's files, "document-content" or the like, with all name spaces.
QByteArray odtRoot(const char* kind);
QByteArray odtFonts();

/// styles.xml: the paper, with header lines above and footer lines and page numbers below each page.
QByteArray odtFrame(const Content& content);
QByteArray odtMeta(const Content& content);
QByteArray odtSettings();
QByteArray odtManifest();

} // namespace reports
