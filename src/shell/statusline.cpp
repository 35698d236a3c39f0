#include "shell/statusline.h"

#include <QAbstractEventDispatcher>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QTime>

#include "shell/program.h"

namespace shell {

StatusLine::StatusLine(QMainWindow* window, const assessment::Assessment& record)
    : QObject(window), m_window(window), m_record(record) {
    window->statusBar()->setObjectName("StatusBar1");
    auto* caption = new QLabel(tr("Client:"));
    caption->setIndent(caption->fontMetrics().averageCharWidth());
    window->statusBar()->addWidget(caption);
    m_name = addPanel("StatusBar1.Panels(2)", false);
    m_said = addPanel("lblSaid", true);
    m_saved = addPanel("lblSaved", true);
    caption->setBuddy(m_name);
    window->setWindowTitle(QString::fromStdString(programCaption()));
    // Every change of the record is caused by an event. Checking after each event costs less than a notification from
    // every place that sets a flag, and no place can be forgotten.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this, &StatusLine::showCaption);
}

QLabel* StatusLine::addPanel(const char* name, bool atTheEnd) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // a name may look like markup
    if (atTheEnd)
        m_window->statusBar()->addPermanentWidget(label);
    else
        m_window->statusBar()->addWidget(label, 1);
    return label;
}

void StatusLine::showClientName() {
    const auto& details = m_record.details;
    m_name->setText(QString::fromStdString(assessment::displayName(details)));
}

void StatusLine::showSaved() { m_saved->setText(tr("Saved %1").arg(QTime::currentTime().toString("HH:mm"))); }

void StatusLine::clear() {
    m_name->clear();
    m_saved->clear();
    if (!m_said->accessibleName().isEmpty()) m_said->setAccessibleName({});
}

void StatusLine::announce(const QString& said) {
    m_said->setAccessibleName(said); // a screen reader reads out a name that changes
    emit announced(said);
}

void StatusLine::showCaption() {
    const bool changed = m_record.ClientChanged == 1 || m_record.changed.any();
    const QString name = m_name->text();
    if (changed == m_captionChanged && name == m_captionName) return;
    m_captionChanged = changed;
    m_captionName = name;
    QString client = name.simplified();
    if (client.isEmpty() && changed) client = tr("New client");
    QString caption = QString::fromStdString(programCaption());
    if (!client.isEmpty()) caption += " - " + client + (changed ? " *" : "");
    m_window->setWindowTitle(caption.replace("[*]", "[*][*]")); // Qt replaces a single one by its own mark
}

} // namespace shell
