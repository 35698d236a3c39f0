#include "screenkit/savefile.h"

#include <QAccessible>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QRegularExpression>
#include <algorithm>
#include <filesystem>

#include "screenkit/desk.h"
#include "screenkit/trouble.h"
#include "store/files.h"

namespace screenkit {

QString endingOf(const QString& filter) {
    static const QRegularExpression pattern(R"(\*(\.\w+))");
    return pattern.match(filter).captured(1);
}

std::optional<QString> askWhereToSave(Desk& desk, const QString& title, const QString& proposed,
                                      const QStringList& filters) {
    const std::optional<QString> chosen = desk.fileToSave(title, proposed, filters);
    if (!chosen || chosen->isEmpty()) return {};
    const auto ends = [&](const QString& filter) { return chosen->endsWith(endingOf(filter), Qt::CaseInsensitive); };
    if (std::any_of(filters.begin(), filters.end(), ends)) return chosen;
    // The dialog asked before overwriting the typed name, which is not the name that is written.
    const QString name = *chosen + endingOf(filters.first());
    const QString question =
        QObject::tr("%1 exists already.\nDo you want to replace it ?").arg(QDir::toNativeSeparators(name));
    if (QFileInfo::exists(name) &&
        desk.box(BoxStyle::question, question, title, Buttons::yesNo, Answer::no) != Answer::yes)
        return {};
    return name;
}

bool saveBytes(Desk& desk, const QString& what, const QString& fileName, const std::function<QByteArray()>& bytes) {
    return guarded(desk, what, [&] {
        const BusyCursor busy;
        store::writeFile(std::filesystem::path(fileName.toStdString()), bytes().toStdString());
    });
}

QLabel* newSavedLine(Desk& desk) {
    auto* line = new QLabel;
    line->setObjectName("savedLine");
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->setTextInteractionFlags(Qt::TextBrowserInteraction);
    QObject::connect(line, &QLabel::linkActivated, line, [&desk](const QString& file) { desk.openOnDesktop(file); });
    return line;
}

void showSaved(QLabel& line, const QString& fileName) {
    const QString file = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    const QString shown = file.toHtmlEscaped();
    line.setText(QObject::tr("Saved as %1 - <a href=\"%1\">open it</a>").arg(shown));
    line.setToolTip(file);
    line.setAccessibleName(QObject::tr("Saved as %1").arg(file));
    QAccessibleEvent told(&line, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

} // namespace screenkit
