#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "store/error.h"

namespace reports {

/// One node of a definition as written: an element of the page, a text, a field, or a section around other nodes.
struct Node {
    enum class Kind { element, text, field, rows, filled };

    Kind kind = Kind::element;
    QString name; ///< the element's tag, the text itself, the field or the rows' table
    QString mask; ///< of a field: how its number prints; empty: as many places as it has
    QHash<QString, QString> attributes;
    QStringList anyOf; ///< of a `filled` section: shown if one of these fields is filled
    QString file;      ///< the definition or piece in which it stands
    qint64 line = 0;   ///< the line there, from 1
    std::vector<Node> children;

    /// The attribute, or an empty text.
    QString attribute(const QString& key) const { return attributes.value(key); }
};

/// A report definition: a well-formed HTML page with fields in it.
///
/// - `<title>`: the report's own title. `<meta name="table" content="Loans"/>`: the table of one row whose fields
///   stand outside of rows.
/// - `{{Num1:# ### ### ##0.00}}`: a field and the mask of its number. `{{Loans.Num1}}`: a field of another table than
///   the one at hand.
/// - `{{#Amort}}...{{/Amort}}`: once for each row of that table, whose fields are then at hand.
/// - `{{?Notes}}...{{/Notes}}`: only if the field is filled: text that is not blank, or a number other than 0.
///   `{{?CTelHome|STelHome}}`: if one of them is.
/// - `{{>amortisation}}`: the file amortisation.rpt beside this one; of a whole page its body.
/// - `<tr heads="2">` in the body of a table: another table begins here, with this row and the next as its heads, which
///   are repeated on each page.
/// - `<p class="lead">` says what the report is, `<p class="answer">` what it was made for, in its strongest type,
///   `<p class="note">` what stands in small; `<tr class="result">` holds the figure that it was made for, `<tr
///   class="total">` what adds up rows above it.
/// - `<!-- -->`: a comment.
struct Definition {
    std::filesystem::path file;
    QString title;
    QString table;        ///< empty in a form that prints no data
    qint64 tableLine = 1; ///< the line that names it
    std::vector<Node> body;
};

/// Reads a definition. A missing file, one that is not well formed, an unclosed section, an element that a page cannot
/// hold and a missing or circular piece are a store::Error that names the file and the line.
Definition readDefinition(const std::filesystem::path& file);

/// A fault in a definition, told with its file and line.
[[noreturn]] void failAt(const QString& file, qint64 line, const QString& why,
                         store::Number number = store::Number::invalidFileFormat);

} // namespace reports
