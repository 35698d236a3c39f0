#include <QXmlStreamReader>

#include "reports/report_support.h"

using namespace reporttest;
using reports::Format;

namespace {

class Export : public ReportTest {
protected:
    Export() {
        feed("Loans",
             {{"Heading", "O'Brien, \"Êksteen\"\nṰhoho-Nḓou <b>&\"x\""}, {"Num1", 1234567.125}, {"Num3", 0.1}});
        feedAmortisation(2);
        define(
            "Own.rpt",
            page("<h1>Title</h1><p>{{Heading}}</p><hr class=\"page\"/><table><thead><tr><th>Year</th><th>Capital</th>"
                 "</tr></thead>"
                 "{{#Amort}}<tr><td>{{Year:##}}</td><td>{{Capital:R # ##0.00 %}}</td></tr>{{/Amort}}"
                 "<tr class=\"result\"><td>Sum</td><td>{{Loans.Num1:# ### ##0.00}}</td></tr></table>"));
    }
    QByteArray bytes(Format format) { return reports::exported(*engine.prepare("Own.rpt", "Shown title"), format); }
    /// The report as a file.
    QString file(Format format) {
        storetest::put(folder / "own", bytes(format).toStdString());
        return pathOf("own");
    }
    /// One file from a zipped document.
    QString part(Format format, const QString& name) { return runTool("unzip", {"-p", file(format), name}); }
    QString sheet(int number) { return part(Format::xlsx, QString("xl/worksheets/sheet%1.xml").arg(number)); }
};

} // namespace

TEST_F(Export, CsvHoldsRawValuesQuotedByTheRules) {
    EXPECT_EQ(bytes(Format::csv).toStdString(), "\xef\xbb\xbfTitle\r\n"
                                                "\"O'Brien, \"\"Êksteen\"\"\nṰhoho-Nḓou <b>&\"\"x\"\"\"\r\n"
                                                "Year,Capital\r\n"
                                                "1,1001.005\r\n"
                                                "2,1002.005\r\n"
                                                "Sum,1234567.125\r\n");
}

// What a cell's text means to a spreadsheet: a text at the left, a figure at the right, or a date.
TEST_F(Export, TextsGetTheTypeThatTheyMean) {
    // text, at the left of the CSV, at the right of it, whether it is a figure in a column of figures
    const std::tuple<const char*, const char*, std::string, bool> cases[] = {
        {"62001234567890123", "\"\t62001234567890123\"", "\"\t62001234567890123\"", false},
        {"0011", "\"\t0011\"", "\"\t0011\"", false},
        {"+27821234567", "\"\t+27821234567\"", "\"\t+27821234567\"", false},
        {"=1+1", "\"\t=1+1\"", "\"\t=1+1\"", false},
        {"12 Main Road", "12 Main Road", "12 Main Road", false},
        {"1 234 567.50", "\"\t1 234 567.50\"", "1234567.5", true},
        {"65", "\"\t65\"", "65", true},
        {"1 2345", "\"\t1 2345\"", "\"\t1 2345\"", false},
        {"28/02/1966", "1966-02-28", "1966-02-28", false},
        {"31/02/1966", "\"\t31/02/1966\"", "\"\t31/02/1966\"", false},
    };
    define("Own.rpt", page("<table><col/><col align=\"right\"/><tr><td>{{FinText1}}</td><td>{{FinText1}}</td></tr>"
                           "<tr><td>{{Num1}}</td></tr></table>"));
    for (const auto& [text, csvLeft, csvRight, isFigure] : cases) {
        feed("Loans", {{"FinText1", text}, {"Num1", 0.1 + 0.2}});
        EXPECT_EQ(bytes(Format::csv).mid(3).toStdString(), csvLeft + ("," + csvRight) + "\r\n0.3\r\n") << text;
        const QString cell = sheet(1).section("<c r=\"B3\"", 1).section("/c>", 0, 0);
        EXPECT_EQ(!cell.contains("t=\"s\""), isFigure || csvRight == "1966-02-28") << text;
    }
}

TEST_F(Export, ProposesAFileNameThatEveryFileSystemTakes) {
    const QString wide(300, QChar(0x1e70));
    const std::tuple<QString, QString, QString> cases[] = {
        {"Mr P  Botha ", "Needs analysis for retirement", "Mr P Botha - Needs analysis for retirement.pdf"},
        {"", "Quick tax", "Quick tax.pdf"},
        {"A/B\\C:*?\"<>|\x01", " Policies: details", "A-B-C-------- - Policies- details.pdf"},
        {"..", "x", "- x.pdf"},
        {wide, "x", wide.left(66) + ".pdf"},
    };
    for (const auto& [name, title, proposed] : cases)
        EXPECT_EQ(reports::proposedFileName(name, title, ".pdf"), proposed);
}

TEST_F(Export, HtmlEscapesTextsAndKeepsHeadsAndFigures) {
    expectWords(QString::fromUtf8(bytes(Format::html)),
                {"<title>Own title</title>", "O'Brien, &quot;Êksteen&quot;<br>Ṱhoho-Nḓou &lt;b&gt;&amp;&quot;x&quot;",
                 "R 1 001.00 %", // half to even
                 "<hr class=\"page\">\n<table", "<thead>", "<tr class=\"result\">",
                 "information supplied by the undersigned client."});
}

/// The text of a document's XML, line by line; fails the test if the XML is not well formed.
QString wordsOf(const QString& xml) {
    QString words;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters()) words += reader.text();
        if (!reader.isStartElement()) continue;
        if (reader.qualifiedName() == u"text:s") words += QString(reader.attributes().value("text:c").toInt(), ' ');
        if (reader.qualifiedName() == u"text:tab") words += '\t';
        if (QStringList{"text:p", "text:h", "text:line-break"}.contains(reader.qualifiedName())) words += '\n';
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return words;
}

TEST_F(Export, OdtHoldsEveryLetterAndFigureAlsoSideBySide) {
    feed("PersDetails", {{"Name", "N"}, {"Comments", "  two  blanks\tand a tab \n\x01=\xef\xbf\xbf&<>\"' "}});
    define("Own.rpt",
           page("<h1>T</h1><div><div><p>Left of</p><table><tr><td>{{Num1:# ### ##0.00}}</td></tr></table></div>"
                "<div><p>{{PersDetails.Comments}}</p></div></div><hr/>"
                "<table><col width=\"50%\"/><col width=\"50%\"/><tr><td colspan=\"2\">{{Heading}}</td></tr>"
                "<tr><td>1</td></tr></table>"));
    EXPECT_EQ(bytes(Format::odt).mid(30, 47), "mimetypeapplication/vnd.oasis.opendocument.text"); // plain, first
    const QString content = part(Format::odt, "content.xml");
    expectWords(wordsOf(content), {"\nO'Brien, \"Êksteen\"\nṰhoho-Nḓou <b>&\"x\"", "\nLeft of", "\n1 234 567.12",
                                   "\n  two  blanks\tand a tab \n=&<>\"' "});
    // A nested table is inside a cell, never between the rows of another; every row has all its cells.
    EXPECT_FALSE(content.contains(QRegularExpression("table:table-row[^>]*>\\s*<table:table ")));
    EXPECT_EQ(content.count("<table:table "), 3);
    EXPECT_TRUE(content.contains("text:outline-level=\"1\"")) << "LibreOffice lists headings by their level";
    EXPECT_EQ(content.count("<table:table-cell ") + content.count("<table:covered-table-cell"), 2 + 1 + 4);
    expectWords(wordsOf(part(Format::odt, "styles.xml")),
                {"information supplied by the undersigned client.", "Page 1 of 1"});
    expectWords(wordsOf(part(Format::odt, "meta.xml")), {"Own title"});
    for (const char* wellFormed : {"settings.xml", "META-INF/manifest.xml"})
        wordsOf(part(Format::odt, wellFormed));
}

TEST_F(Export, XlsxHoldsNumbersWithTheirFormat) {
    expectWords(sheet(1),
                {"<v>1001.005</v>", "<v>1234567.125</v>", "<rowBreaks count=\"1\" manualBreakCount=\"1\"><brk"});
    expectWords(part(Format::xlsx, "xl/styles.xml"), {"formatCode=\"&quot;R &quot;#,##0.00&quot; %&quot;\""});
    expectWords(part(Format::xlsx, "xl/sharedStrings.xml"), {"O'Brien, \"Êksteen\"\nṰhoho-Nḓou &lt;b&gt;&amp;\"x\""});
}

TEST_F(Export, XlsxFitsItsColumnsAndPagesAndPutsNothingOverAnotherCell) {
    std::string notes;
    for (int word = 0; word < 8000; ++word) // more than fits into a cell
        notes += "w" + std::to_string(word) + " ";
    feed("PersDetails", {{"Name", "N"}, {"Comments", notes}, {"CEMail", "a.very.long.address@a-practice.co.za"}});
    feedAmortisation(30);
    define("Own.rpt", page("<h1>Title</h1><p>{{PersDetails.Comments}}</p><table><tr><td>{{PersDetails.CEMail}}</td>"
                           "<td>x</td></tr></table><h2>Years: [all]</h2><table><thead><tr><th>Year</th><th>Capital</th>"
                           "</tr></thead>{{#Amort}}<tr><td>{{Year:##}}</td><td>{{Capital:# ##0.00}}</td></tr>{{/Amort}}"
                           "</table>"));
    expectWords(part(Format::xlsx, "xl/workbook.xml"),
                {"<sheet name=\"Report\"", "<sheet name=\"Years all\"", ">'Years all'!$2:$2</definedName>"});
    expectWords(sheet(1), {"<pageSetUpPr fitToPage=\"1\"/>", "paperSize=\"9\"", "fitToHeight=\"0\"", "<mergeCell "});
    const QRegularExpression firstColumn("<col min=\"1\" max=\"1\" width=\"([0-9.]+)\"");
    EXPECT_GT(firstColumn.match(sheet(1)).captured(1).toDouble(), 36);
    EXPECT_LT(firstColumn.match(sheet(2)).captured(1).toDouble(), 12);
    QString texts = part(Format::xlsx, "xl/sharedStrings.xml");
    texts.replace(QRegularExpression("<[^>]*>"), " ");
    for (int word = 0; word < 8000; word += 37) // no word is lost where the notes were split
        ASSERT_TRUE(texts.contains(QString(" w%1 ").arg(word))) << word;
}

TEST_F(Export, PdfKeepsTheLettersAndHasItsTitleLanguageAuthorAndAnOutlineOfItsHeadings) {
    feed("HeadFoot", {{"HEADERV0", ""}, {"HEADERV1", "Marlow & Ṱhoho"}});
    feedAmortisation(60);
    define("Own.rpt", page("<h1>Title</h1><p>{{Heading}}</p><h2>First</h2><p>x</p><h2>Years</h2><table>{{#Amort}}"
                           "<tr><td>{{Year:##}}</td></tr>{{/Amort}}</table><h2>Last</h2><p>y</p>"));
    const QString pdf = file(Format::pdf);
    expectWords(textOfPdf(pdf), {"O'Brien, \"Êksteen\"", "Ṱhoho-Nḓou <b>&\"x\""});
    expectWords(runTool("pdfinfo", {pdf}).simplified(),
                {"Title: Own title", "Author: Marlow & Ṱhoho", "Pages: 2", "pts (A4)"});
    expectWords(runTool("qpdf", {"--check", pdf}), {"No syntax or stream encoding errors found"});
    const QJsonObject json = jsonOf(pdf);
    EXPECT_EQ(outlineOf(json), QStringList({"1 Title page 1", "2 First page 1", "2 Years page 1", "2 Last page 2"}));
    const QJsonObject objects = json["objects"].toObject();
    const QString root = objects["trailer"]["/Root"].toString();
    EXPECT_EQ(objects[root]["/Lang"].toString(), "en-ZA");
    const QJsonValue outline = objects[objects[root]["/Outlines"].toString()];
    EXPECT_EQ(outline["/Count"].toInt(), 4) << "a reader shows all of them at first";
    const QString title = outline["/Last"].toString();
    const QJsonValue last = objects[objects[title]["/Last"].toString()];
    EXPECT_EQ(last["/Title"].toString(), "Last");
    EXPECT_LT(last["/Dest"][3].toDouble(), 800) << "below the head of its page";
}
