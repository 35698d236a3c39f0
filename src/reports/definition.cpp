#include "reports/definition.h"

#include <QSet>
#include <QXmlStreamReader>

#include "store/files.h"

namespace reports {
namespace {

const QSet<QString>& knownElements() {
    static const QSet<QString> elements{"html", "head", "title", "meta", "body",  "h1",    "h2", "h3", "p",  "b",  "i",
                                        "br",   "hr",   "table", "col",  "thead", "tbody", "tr", "th", "td", "div"};
    return elements;
}

/// Any blanks and line ends between words of a definition count as one blank, as in HTML.
QString withSingleBlanks(const QString& text) {
    QString result;
    for (const QChar letter : text) {
        const bool blank = letter == ' ' || letter == '\n' || letter == '\t' || letter == '\r';
        if (!blank)
            result += letter;
        else if (!result.endsWith(' '))
            result += ' ';
    }
    return result;
}

/// Parses a file, and the pieces that it includes, into nodes.
class Reader {
public:
    Reader(const std::filesystem::path& file, QStringList readBefore)
        : m_file(file), m_name(QString::fromStdString(file.string())), m_openFiles(std::move(readBefore)) {
        m_openFiles << m_name;
    }

    /// The file's nodes. A piece may have several roots, so all of it is wrapped in one element.
    Node read() {
        const QByteArray bytes = QByteArray::fromStdString(store::readFile(m_file));
        if (bytes.trimmed().isEmpty()) failAt(m_name, 1, "The definition is empty.");
        m_xml.addData("<piece>" + bytes + "</piece>");
        Node root = node(Node::Kind::element, "piece");
        m_open = {&root};
        m_xml.readNextStartElement();
        m_xml.readNext();
        while (!m_xml.atEnd() && !(m_xml.isEndElement() && m_xml.name() == u"piece")) {
            readToken();
            m_xml.readNext();
        }
        if (m_xml.hasError()) failAt(m_name, unclosedLine(m_xml.lineNumber()), m_xml.errorString());
        requireClosed();
        return root;
    }

private:
    /// The parser reports an unclosed section as an error of the surrounding element; this gives the section's line
    /// instead.
    qint64 unclosedLine(qint64 otherwise) const {
        return m_open.back()->kind == Node::Kind::rows || m_open.back()->kind == Node::Kind::filled
                   ? m_open.back()->line
                   : otherwise;
    }

    Node node(Node::Kind kind, const QString& name) const {
        Node result;
        result.kind = kind;
        result.name = name;
        result.file = m_name;
        result.line = m_xml.lineNumber();
        return result;
    }

    void readToken() {
        if (m_xml.isStartElement())
            startElement();
        else if (m_xml.isEndElement())
            endElement();
        else if (m_xml.isCharacters())
            readText(m_xml.text().toString());
    }

    void startElement() {
        const QString name = m_xml.name().toString();
        if (!knownElements().contains(name))
            failAt(m_name, m_xml.lineNumber(), QString("<%1> is not allowed in a report.").arg(name));
        Node element = node(Node::Kind::element, name);
        for (const QXmlStreamAttribute& attribute : m_xml.attributes())
            element.attributes.insert(attribute.name().toString(), attribute.value().toString());
        open(std::move(element));
    }

    void endElement() {
        if (m_open.back()->kind != Node::Kind::element) failUnclosed();
        m_open.pop_back();
    }

    void open(Node&& added) {
        // Space was reserved, so the pointers on the stack stay valid: only the innermost node grows.
        m_open.back()->children.push_back(std::move(added));
        m_open.push_back(&m_open.back()->children.back());
    }

    /// Splits a text at its tags. The line of each tag is found by counting back from the end of the text.
    void readText(const QString& text) {
        qint64 line = m_xml.lineNumber() - text.count('\n');
        qsizetype from = 0;
        while (true) {
            const qsizetype start = text.indexOf("{{", from);
            addText(text.mid(from, start < 0 ? -1 : start - from), line);
            if (start < 0) return;
            line += QStringView(text).mid(from, start - from).count('\n');
            const qsizetype end = text.indexOf("}}", start);
            if (end < 0) failAt(m_name, line, "A field is opened with {{ but not closed with }}.");
            readTag(text.mid(start + 2, end - start - 2), line);
            line += QStringView(text).mid(start, end - start).count('\n');
            from = end + 2;
        }
    }

    void addText(const QString& text, qint64 line) {
        const QString single = withSingleBlanks(text);
        if (single.isEmpty()) return;
        Node added = node(Node::Kind::text, single);
        added.line = line;
        m_open.back()->children.push_back(std::move(added));
    }

    void readTag(const QString& tag, qint64 line) {
        const QChar sign = tag.isEmpty() ? QChar() : tag.at(0);
        const QString name = tag.mid(1).trimmed();
        if (sign == '#')
            openSection(Node::Kind::rows, name, line);
        else if (sign == '?')
            openSection(Node::Kind::filled, name, line);
        else if (sign == '/')
            closeSection(name, line);
        else if (sign == '>')
            addPiece(name, line);
        else
            addField(tag, line);
    }

    void openSection(Node::Kind kind, const QString& name, qint64 line) {
        Node section = node(kind, name);
        section.line = line;
        if (kind == Node::Kind::filled)
            for (const QString& field : name.split('|'))
                section.anyOf << field.trimmed();
        open(std::move(section));
    }

    void closeSection(const QString& name, qint64 line) {
        const Node& section = *m_open.back();
        if (section.kind == Node::Kind::element || section.kind == Node::Kind::text)
            failAt(m_name, line, QString("{{/%1}} has no open section to close here.").arg(name));
        if (section.name.compare(name, Qt::CaseInsensitive) != 0) failUnclosed();
        m_open.pop_back();
    }

    void addField(const QString& tag, qint64 line) {
        const qsizetype colon = tag.indexOf(':');
        Node field = node(Node::Kind::field, tag.left(colon < 0 ? tag.size() : colon).trimmed());
        if (field.name.isEmpty()) failAt(m_name, line, "A field has no name.");
        if (colon >= 0) field.mask = tag.mid(colon + 1);
        field.line = line;
        m_open.back()->children.push_back(std::move(field));
    }

    void addPiece(const QString& name, qint64 line);

    [[noreturn]] void failUnclosed() const {
        const Node& section = *m_open.back();
        failAt(m_name, section.line,
               QString("The section {{%1%2}} is not closed.")
                   .arg(section.kind == Node::Kind::rows ? "#" : "?", section.name));
    }
    void requireClosed() const {
        if (m_open.size() > 1) failUnclosed();
    }

    std::filesystem::path m_file;
    QString m_name;
    QStringList m_openFiles; ///< the including files, to detect a piece that includes itself
    QXmlStreamReader m_xml;
    std::vector<Node*> m_open;
};

const Node* childElement(const Node& parent, const QString& name) {
    for (const Node& child : parent.children)
        if (child.kind == Node::Kind::element && child.name == name) return &child;
    return nullptr;
}

/// The printed nodes of a file: the body of a whole page, or all of a piece.
std::vector<Node> printedNodes(Node& root) {
    if (const Node* html = childElement(root, "html"))
        if (const Node* body = childElement(*html, "body")) return body->children;
    return std::move(root.children);
}

QString plainText(const Node& element) {
    QString text;
    for (const Node& child : element.children)
        if (child.kind == Node::Kind::text) text += child.name;
    return text;
}

void Reader::addPiece(const QString& name, qint64 line) {
    const std::filesystem::path piece =
        store::existingSpelling(m_file.parent_path() / store::nativePath((name + ".rpt").toStdString()));
    if (!std::filesystem::exists(piece))
        failAt(m_name, line, QString("There is no piece \"%1\": %2.rpt is missing beside it.").arg(name, name));
    if (m_openFiles.contains(QString::fromStdString(piece.string())))
        failAt(m_name, line, QString("The piece \"%1\" includes itself.").arg(name));
    Node root = Reader(piece, m_openFiles).read();
    for (Node& child : printedNodes(root))
        m_open.back()->children.push_back(std::move(child));
}

} // namespace

void failAt(const QString& file, qint64 line, const QString& why, store::Number number) {
    throw store::Error(number, file.toStdString(), QString("Line %1: %2").arg(line).arg(why).toStdString(),
                       "Correct the report definition, or install the program again.");
}

Definition readDefinition(const std::filesystem::path& file) {
    Node root = Reader(file, {}).read();
    Definition definition;
    definition.file = file;
    if (const Node* html = childElement(root, "html"))
        if (const Node* head = childElement(*html, "head")) {
            if (const Node* title = childElement(*head, "title")) definition.title = plainText(*title).trimmed();
            if (const Node* meta = childElement(*head, "meta"); meta && meta->attribute("name") == "table") {
                definition.table = meta->attribute("content");
                definition.tableLine = meta->line;
            }
        }
    definition.body = printedNodes(root);
    return definition;
}

} // namespace reports
