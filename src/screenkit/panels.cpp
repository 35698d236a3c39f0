#include <QLabel>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "screenkit/look.h"
#include "screenkit/screen.h"

// The panels that a screen can declare.
namespace screenkit {

namespace {

/// A text of a comfortable reading size; longer text scrolls, and a small window makes it smaller.
class TextPage : public QTextBrowser {
public:
    explicit TextPage(const QString& name) { setObjectName(name); }
    QSize sizeHint() const override { return {fontMetrics().averageCharWidth() * 80, look::lineHeight(this) * 20}; }
    QSize minimumSizeHint() const override { return sizeHint() / 4; }
};

} // namespace

template <class Kind>
Kind* Screen::addPanel(const QString& name, const QString& title) {
    auto* made = new Kind(name, title, m_area, this);
    m_panels.push_back(made);
    return made;
}

Panel* Screen::panel(const QString& name, const QString& title, const Item& content,
                     std::initializer_list<QPushButton*> buttons) {
    auto* made = addPanel<Panel>(name, title);
    made->setContent(content, buttons);
    return made;
}

std::function<void(const Topic&)> Screen::infoPanel(const InfoNames& names) {
    auto* page = new TextPage(names.text);
    auto* made = addPanel<Panel>(names.panel, {});
    made->title()->setObjectName(names.title);
    made->setContent(page, {cancelButton(names.ok, "&OK", [made] { made->close(); })});
    return [made, page](const Topic& topic) {
        made->setTitle(topic.title);
        page->setAccessibleName(topic.title.trimmed());
        page->setPlainText(topic.text);
        made->open(page);
    };
}

std::function<void()> Screen::settings(const SettingsNames& names, const Item& content, std::vector<Field*> fields,
                                       const SettingsSteps& steps) {
    for (Field* field : fields)
        untrackedField(field);
    auto* made = addPanel<Panel>(names.panel, names.title);
    auto* ok = button(names.ok, names.okCaption, [this, made, steps] {
        if (!attempt(tr("store the settings"), steps.store)) return;
        made->close();
        if (steps.stored) steps.stored();
    });
    made->setContent(content, {ok, cancelButton(names.cancel, names.cancelCaption, [made] { made->close(); })});
    return [made, fields = std::move(fields), steps] {
        steps.copy();
        for (Field* field : fields)
            field->fill();
        made->open();
    };
}

PrintPanel* Screen::printPanel(std::initializer_list<Item> choices, std::function<void(Destination)> print,
                               const PrintNames& names) {
    auto* made = addPanel<PrintPanel>(names.panel, tr("Print"));
    made->processing = new QLabel(" PROCESSING !");
    made->processing->setObjectName("lblProcessing");
    made->processing->setAlignment(Qt::AlignCenter);
    made->processing->hide();
    auto* content = column(choices);
    static_cast<QVBoxLayout*>(content)->addWidget(made->processing);
    const auto run = [this, made, print = std::move(print)](Destination to) { runPrint(made, print, to); };
    made->view = button(names.view, "&View/Export report", [run] { run(Destination::preview); });
    made->direct = button(names.direct, "P&rint directly to printer", [run] { run(Destination::printer); });
    auto* cancel = cancelButton(names.cancel, names.cancelCaption, [made] { made->close(); });
    made->setContent(content, {made->view, made->direct, cancel});
    return made;
}

} // namespace screenkit
