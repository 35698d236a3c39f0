#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "store/error.h"

namespace reports {

/// One node of a definition as written: an element, a text, a field, or a section around other nodes.
struct Node {
    enum class Kind { element, text, field, rows, filled };

    Kind kind = Kind::element;
    QString name; ///< tag of an element, content of a text, name of a field or of the table of rows
    QString mask; ///< for a field: the format of its number; empty: as many places as it has
    QHash<QString, QString> attributes;
    QStringList anyOf; ///< for a `filled` section: shown if any of these fields is filled
    QString file;      ///< the definition or piece that contains it
    qint64 line = 0;   ///< its line there, from 1
    std::vector<Node> children;

    /// The attribute, or an empty text if there is none.
    QString attribute(const QString& key) const { return attributes.value(key); }
};

/// A report definition: a well-formed HTML page with fields.
///
/// - `<title>`: the report's own title. `<meta name="table" content="Loans"/>`: the table of one row for all fields
///   outside rows.
/// - `{{Num1:# ### ### ##0.00}}`: a field and the format of its number. `{{Loans.Num1}}`: a field of another table than
///   the current one.
/// - `{{#Amort}}...{{/Amort}}`: repeated for each row of that table, which is the current table inside.
/// - `{{?Notes}}...{{/Notes}}`: only if the field is filled: text that is not blank, or a number other than 0.
///   `{{?CTelHome|STelHome}}`: if at least one of them is.
/// - `{{>amortisation}}`: includes the file amortisation.rpt beside this one; of a whole page its body.
/// - `<tr heads="2">` in the body of a table: another table begins here, with this row and the next one as its heads,
///   which are repeated on each page.
/// - `<p class="lead">` says what the report is, `<p class="answer">` answers its question, in its strongest type,
///   `<p class="note">` is small print; `<tr class="result">` holds the figure that answers the question,
///   `<tr class="total">` the sum of rows above it.
/// - `<h1 class="cover">`: a title in the largest type, with room above it, as on the cover of a document.
/// - `<hr class="page"/>`: a new page begins here, not within columns.
/// - `<!-- -->`: a comment.
struct Definition {
    std::filesystem::path file;
    QString title;
    QString table;        ///< empty for a form without data
    qint64 tableLine = 1; ///< the line that names the table
    std::vector<Node> body;
};

/// Reads a definition. Throws a store::Error that names file and line for a missing file, a file that is not well
/// formed, an unclosed section, an element that a page can't hold, and a missing or circular piece.
Definition readDefinition(const std::filesystem::path& file);

/// Throws the error for a fault in a definition, with its file and line.
[[noreturn]] void failAt(const QString& file, qint64 line, const QString& why,
                         store::Number number = store::Number::invalidFileFormat);

} // namespace reports
