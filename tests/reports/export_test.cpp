#include <sys/resource.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <csignal>

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
        define("Own.rpt",
               page("<h1>Title</h1><p>{{Heading}}</p><table><thead><tr><th>Year</th><th>Capital</th></tr></thead>"
                    "{{#Amort}}<tr><td>{{Year:##}}</td><td>{{Capital:R # ##0.00 %}}</td></tr>{{/Amort}}"
                    "<tr class=\"result\"><td>Sum</td><td>{{Loans.Num1:# ### ##0.00}}</td></tr></table>"));
    }
    QByteArray bytes(Format format) { return reports::exported(*engine.prepare("Own.rpt", "Shown title"), format); }
    /// One file out of a zipped document.
    QString part(Format format, const QString& name) {
        const fs::path file = folder / "zipped";
        storetest::put(file, bytes(format).toStdString());
        return runTool("unzip", {"-p", QString::fromStdString(file.string()), name});
    }
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

// What a cell's text is to a spreadsheet: text at the left, a figure at the right, or a day.
TEST_F(Export, TextsAreTakenForWhatTheyMean) {
    const struct {
        const char *text, *csvLeft, *csvRight;
        bool figure; ///< in a column of figures
    } cases[] = {
        {"62001234567890123", "\"\t62001234567890123\"", "\"\t62001234567890123\"", false},
        {"6602285009087", "\"\t6602285009087\"", "\"\t6602285009087\"", false},
        {"0011", "\"\t0011\"", "\"\t0011\"", false},
        {"+27821234567", "\"\t+27821234567\"", "\"\t+27821234567\"", false},
        {"=1+1", "\"\t=1+1\"", "\"\t=1+1\"", false},
        {"12 Main Road", "12 Main Road", "12 Main Road", false},
        {"1 234 567.50", "\"\t1 234 567.50\"", "1234567.5", true},
        {"-1 250", "\"\t-1 250\"", "-1250", true},
        {"65", "\"\t65\"", "65", true},
        {"1 2345", "\"\t1 2345\"", "\"\t1 2345\"", false},
        {"28/02/1966", "1966-02-28", "1966-02-28", false},
        {"31/02/1966", "\"\t31/02/1966\"", "\"\t31/02/1966\"", false},
    };
    define("Own.rpt", page("<table><col/><col align=\"right\"/><tr><td>{{FinText1}}</td><td>{{FinText1}}</td></tr>"
                           "<tr><td>{{Num1}}</td></tr></table>"));
    for (const auto& c : cases) {
        feed("Loans", {{"FinText1", c.text}, {"Num1", 0.1 + 0.2}});
        EXPECT_EQ(bytes(Format::csv).mid(3).toStdString(), std::string(c.csvLeft) + "," + c.csvRight + "\r\n0.3\r\n")
            << c.text;
        const QString cell =
            part(Format::xlsx, "xl/worksheets/sheet1.xml").section("<c r=\"B3\"", 1).section("/c>", 0, 0);
        EXPECT_EQ(!cell.contains("t=\"s\""), c.figure || c.csvRight == std::string("1966-02-28")) << c.text;
    }
}

TEST_F(Export, ProposesAFileNameThatEveryFileSystemTakes) {
    const QString wide(300, QChar(0x1e70));
    const struct {
        QString client, title, name;
    } cases[] = {
        {"Mr P  Botha ", "Needs analysis for retirement", "Mr P Botha - Needs analysis for retirement.pdf"},
        {"", "Quick tax", "Quick tax.pdf"},
        {"A/B\\C:*?\"<>|\x01", " Policies: details", "A-B-C-------- - Policies- details.pdf"},
        {"..", "x", "- x.pdf"},
        {wide, "x", wide.left(66) + ".pdf"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(reports::proposedFileName(c.client, c.title, ".pdf"), c.name) << c.name.toStdString();
}

TEST_F(Export, HtmlEscapesTextsAndKeepsHeadsAndFigures) {
    const QString html = QString::fromUtf8(bytes(Format::html));
    EXPECT_TRUE(html.contains("<title>Own title</title>"));
    EXPECT_TRUE(html.contains("O'Brien, &quot;Êksteen&quot;<br>Ṱhoho-Nḓou &lt;b&gt;&amp;&quot;x&quot;"));
    EXPECT_TRUE(html.contains("R 1 001.00 %")); // half to even
    EXPECT_TRUE(html.contains("<thead>"));
    EXPECT_TRUE(html.contains("<tr class=\"result\">"));
    EXPECT_TRUE(html.contains("information supplied by the undersigned client."));
}

/// The words of a document's XML, line by line; an XML that is not well formed fails the test.
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
    define("Own.rpt", page("<div><div><p>Left of</p><table><tr><td>{{Num1:# ### ##0.00}}</td></tr></table></div>"
                           "<div><p>{{PersDetails.Comments}}</p></div></div><hr/>"
                           "<table><col width=\"50%\"/><col width=\"50%\"/><tr><td colspan=\"2\">{{Heading}}</td></tr>"
                           "<tr><td>1</td></tr></table>"));
    const QByteArray file = bytes(Format::odt);
    EXPECT_EQ(file.mid(30, 47), "mimetypeapplication/vnd.oasis.opendocument.text"); // stored, and first
    const QString content = part(Format::odt, "content.xml");
    const QString words = wordsOf(content);
    for (const char* text : {"\nO'Brien, \"Êksteen\"\nṰhoho-Nḓou <b>&\"x\"", "\nLeft of", "\n1 234 567.12",
                             "\n  two  blanks\tand a tab \n=&<>\"' "})
        EXPECT_TRUE(words.contains(text)) << text << " in " << words.toStdString();
    // A table stands in a cell, never between the rows of another; every row has all its cells.
    EXPECT_FALSE(content.contains(QRegularExpression("table:table-row[^>]*>\\s*<table:table ")));
    EXPECT_EQ(content.count("<table:table "), 3);
    EXPECT_EQ(content.count("<table:table-cell ") + content.count("<table:covered-table-cell"), 2 + 1 + 4);
    const QString frame = wordsOf(part(Format::odt, "styles.xml"));
    EXPECT_TRUE(frame.contains("information supplied by the undersigned client.") && frame.contains("Page 1 of 1"));
    EXPECT_TRUE(wordsOf(part(Format::odt, "meta.xml")).contains("Own title"));
    wordsOf(part(Format::odt, "settings.xml"));
    wordsOf(part(Format::odt, "META-INF/manifest.xml"));
}

TEST_F(Export, XlsxHoldsNumbersWithTheirFormat) {
    const QString sheet = part(Format::xlsx, "xl/worksheets/sheet1.xml");
    EXPECT_TRUE(sheet.contains("<v>1001.005</v>")) << sheet.toStdString();
    EXPECT_TRUE(sheet.contains("<v>1234567.125</v>"));
    const QString styles = part(Format::xlsx, "xl/styles.xml");
    EXPECT_TRUE(styles.contains("formatCode=\"&quot;R &quot;#,##0.00&quot; %&quot;\"")) << styles.toStdString();
    const QString texts = part(Format::xlsx, "xl/sharedStrings.xml");
    EXPECT_TRUE(texts.contains("O'Brien, \"Êksteen\"\nṰhoho-Nḓou &lt;b&gt;&amp;\"x\"")) << texts.toStdString();
}

TEST_F(Export, XlsxFitsItsColumnsAndPagesAndPutsNothingOverAnotherCell) {
    std::string notes;
    for (int word = 0; word < 8000; ++word) // more than a cell can hold
        notes += "w" + std::to_string(word) + " ";
    feed("PersDetails", {{"Name", "N"}, {"Comments", notes}, {"CEMail", "a.very.long.address@a-practice.co.za"}});
    feedAmortisation(30);
    define("Own.rpt", page("<h1>Title</h1><p>{{PersDetails.Comments}}</p><table><tr><td>{{PersDetails.CEMail}}</td>"
                           "<td>x</td></tr></table><h2>Years: [all]</h2><table><thead><tr><th>Year</th><th>Capital</th>"
                           "</tr></thead>{{#Amort}}<tr><td>{{Year:##}}</td><td>{{Capital:# ##0.00}}</td></tr>{{/Amort}}"
                           "</table>"));
    const QString book = part(Format::xlsx, "xl/workbook.xml");
    EXPECT_TRUE(book.contains("<sheet name=\"Report\"") && book.contains("<sheet name=\"Years all\""));
    EXPECT_TRUE(book.contains(">'Years all'!$2:$2</definedName>")) << book.toStdString();
    const QString sheet = part(Format::xlsx, "xl/worksheets/sheet1.xml");
    for (const char* setting :
         {"<pageSetUpPr fitToPage=\"1\"/>", "paperSize=\"9\"", "fitToHeight=\"0\"", "<mergeCell "})
        EXPECT_TRUE(sheet.contains(setting)) << setting;
    const QRegularExpression firstColumn("<col min=\"1\" max=\"1\" width=\"([0-9.]+)\"");
    EXPECT_GT(firstColumn.match(sheet).captured(1).toDouble(), 36);
    EXPECT_LT(firstColumn.match(part(Format::xlsx, "xl/worksheets/sheet2.xml")).captured(1).toDouble(), 12);
    QString texts = part(Format::xlsx, "xl/sharedStrings.xml");
    texts.replace(QRegularExpression("<[^>]*>"), " ");
    for (int word = 0; word < 8000; word += 37) // none is lost where the notes were parted
        ASSERT_TRUE(texts.contains(QString(" w%1 ").arg(word))) << word;
}

TEST_F(Export, PdfKeepsTheLettersAndItsTitle) {
    const QByteArray pdf = bytes(Format::pdf);
    const QString text = textOfPdf(pdf);
    EXPECT_TRUE(text.contains("O'Brien, \"Êksteen\"")) << text.toStdString();
    EXPECT_TRUE(text.contains("Ṱhoho-Nḓou <b>&\"x\""));
    storetest::put(folder / "own.pdf", pdf.toStdString());
    const QString info = runTool("pdfinfo", {QString::fromStdString((folder / "own.pdf").string())});
    EXPECT_EQ(simplifiedLine(info, "Title:"), "Title: Own title");
    EXPECT_TRUE(simplifiedLine(info, "Page size:").contains("A4"));
}

TEST_F(Export, PdfHasItsLanguageItsAuthorAndAnOutlineOfItsHeadings) {
    feed("HeadFoot", {{"HEADERV0", ""}, {"HEADERV1", "Marlow & Ṱhoho"}});
    feedAmortisation(60);
    define("Own.rpt", page("<h1>Title</h1><h2>First</h2><p>x</p><h2>Years</h2><table>{{#Amort}}<tr><td>{{Year:##}}"
                           "</td></tr>{{/Amort}}</table><h2>Last</h2><p>y</p>"));
    const fs::path file = folder / "own.pdf";
    storetest::put(file, bytes(Format::pdf).toStdString());
    const QString name = QString::fromStdString(file.string());
    EXPECT_TRUE(runTool("qpdf", {"--check", name}).contains("No syntax or stream encoding errors found"));
    EXPECT_EQ(simplifiedLine(runTool("pdfinfo", {name}), "Author:"), "Author: Marlow & Ṱhoho");
    const QJsonObject json =
        QJsonDocument::fromJson(
            runTool("qpdf", {"--json=1", "--json-key=outlines", "--json-key=objects", name}).toUtf8())
            .object();
    QStringList found;
    const std::function<void(const QJsonArray&, int)> list = [&](const QJsonArray& items, int level) {
        for (const QJsonValue& item : items) {
            found << QString("%1 %2 page %3")
                         .arg(level)
                         .arg(item["title"].toString())
                         .arg(item["destpageposfrom1"].toInt());
            list(item["kids"].toArray(), level + 1);
        }
    };
    list(json["outlines"].toArray(), 1);
    EXPECT_EQ(found, QStringList({"1 Title page 1", "2 First page 1", "2 Years page 1", "2 Last page 2"}));
    const QJsonObject objects = json["objects"].toObject();
    const QString root = objects["trailer"]["/Root"].toString();
    EXPECT_EQ(objects[root]["/Lang"].toString(), "en-ZA");
}

TEST_F(Export, AFailedWriteShowsABoxAndLeavesNothing) {
    ASSERT_TRUE(engine.run("Own.rpt", "x", Destination::preview));
    reports::PreviewWindow* window = engine.previews().front();
    const auto files = [&] { return std::distance(fs::directory_iterator(folder / "out"), fs::directory_iterator{}); };
    fs::create_directory(folder / "out");
    storetest::put(folder / "out/kept.pdf", "old");
    const QString target = QString::fromStdString((folder / "out/kept.pdf").string());
    fs::permissions(folder / "out", fs::perms::owner_read | fs::perms::owner_exec);
    desk.expectBoxes(2);
    {
        const storetest::OrdinaryUser user(folder);
        EXPECT_FALSE(window->exportTo(target));
    }
    ASSERT_EQ(desk.boxes.size(), 1u);
    EXPECT_EQ(desk.boxes[0].style, screenkit::BoxStyle::critical);
    EXPECT_EQ(desk.boxes[0].title, "Marlowbeck");
    EXPECT_TRUE(desk.boxes[0].text.contains("kept.pdf"));
    EXPECT_TRUE(desk.boxes[0].text.endsWith("(70)")) << desk.boxes[0].text.toStdString();
    EXPECT_EQ(storetest::bytesOf(folder / "out/kept.pdf"), "old");
    EXPECT_FALSE(window->exportTo(QString::fromStdString((folder / "nowhere/x.csv").string())));
    EXPECT_TRUE(desk.boxes.back().text.endsWith("(76)")) << desk.boxes.back().text.toStdString();
    fs::permissions(folder / "out", fs::perms::owner_all);
    EXPECT_EQ(files(), 1);
}

// A full disk, by way of the largest file that this process may write.
TEST_F(Export, AFullDiskLeavesTheOldFileWhole) {
    ASSERT_TRUE(engine.run("Own.rpt", "x", Destination::preview));
    fs::create_directory(folder / "out");
    storetest::put(folder / "out/kept.html", "old");
    desk.expectBoxes(1);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const bool written =
        engine.previews().front()->exportTo(QString::fromStdString((folder / "out/kept.html").string()));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(written);
    ASSERT_EQ(desk.boxes.size(), 1u);
    EXPECT_TRUE(desk.boxes[0].text.endsWith("(61)")) << desk.boxes[0].text.toStdString();
    EXPECT_EQ(storetest::bytesOf(folder / "out/kept.html"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "out"), fs::directory_iterator{}), 1);
}
