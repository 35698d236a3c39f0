#pragma once

#include <vector>

#include "reports/content.h"

class QXmlStreamWriter;

namespace reports {

class Face;
class OdtStyles;

/// Writes a text with its blanks, tabs and line ends in the file's own form.
void writeOdtText(QXmlStreamWriter& xml, const QString& text);

/// Writes the runs of a paragraph in that face; in body text a run may be bold or italic.
void writeOdtRuns(QXmlStreamWriter& xml, OdtStyles& styles, const std::vector<Run>& runs, const Face& face);

} // namespace reports
