#pragma once

#include <vector>

#include "reports/content.h"

class QXmlStreamWriter;

namespace reports {

class Face;
class OdtStyles;

/// A text with its blanks, tabs and line ends as the file writes them.
void writeOdtText(QXmlStreamWriter& xml, const QString& text);

/// Runs inside a paragraph of that face; in body text a run may be bold or slanted.
void writeOdtRuns(QXmlStreamWriter& xml, OdtStyles& styles, const std::vector<Run>& runs, const Face& face);

} // namespace reports
