#include <QHBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>

#include "screenkit/look.h"
#include "screenkit/pages.h"
#include "screenkit/screen.h"

// The controls that a screen declares; panels are in panels.cpp, the screen's behaviour in screen.cpp.
namespace screenkit {

namespace {

void greyOut(QPushButton* push) {
    push->setEnabled(false);
    push->setToolTip(QObject::tr("Not in this version yet"));
}

} // namespace

template <class F>
F* Screen::keep(F* field) {
    Field* base = field;
    m_fields.push_back(base);
    base->edited = [this] {
        if (m_filling) return;
        m_changed = 1;
        takeEdit();
    };
    base->left = [this, base] { leave(base); };
    return field;
}

NumberField* Screen::number(const QString& name, Bound<double> place, const NumberKind& kind) {
    return keep(new NumberField(name, std::move(place), kind));
}

NumberField* Screen::result(const QString& name, Bound<double> place, const NumberKind& kind) {
    NumberField* field = number(name, std::move(place), kind);
    field->setResult(true);
    return field;
}

TextField* Screen::text(const QString& name, Bound<QString> place, int size, int characters) {
    return keep(new TextField(name, std::move(place), size, characters));
}

MemoField* Screen::memo(const QString& name, Bound<QString> place, int size) {
    return keep(new MemoField(name, std::move(place), size));
}

DateField* Screen::date(const QString& name, Bound<double> place, const DateKind& kind) {
    return keep(new DateField(name, std::move(place), m_work.desk, kind));
}

OptionGroup* Screen::options(const QString& name, const QStringList& captions, Bound<int> place,
                             std::function<void(int)> picked, std::optional<Qt::Orientation> orientation) {
    auto* group = keep(new OptionGroup(name, captions, std::move(place), orientation, this));
    if (picked)
        group->picked = [this, picked = std::move(picked)](int index) {
            attempt(tr("take the choice"), [&] { picked(index); });
        };
    return group;
}

CheckField* Screen::check(const QString& name, const QString& caption, Bound<int> place,
                          std::function<void(bool)> ticked) {
    auto* field = keep(new CheckField(name, caption, std::move(place)));
    if (ticked)
        field->ticked = [this, ticked = std::move(ticked)](bool on) {
            attempt(tr("take the choice"), [&] { ticked(on); });
        };
    return field;
}

EditGrid* Screen::editGrid(const QString& name) {
    auto* grid = keep(new EditGrid(name));
    grid->check = [this, grid] { return !complain(grid); };
    return grid;
}

Grid* Screen::table(const QString& name, const QString& spokenName, Grid::Picking picking, std::function<void()> picked,
                    std::function<void()> opened, std::function<void(int)> headPressed) {
    auto* grid = new Grid(name);
    grid->setAccessibleName(spokenName);
    grid->setPicking(picking);
    const auto guardedAction = [this](const QString& what, std::function<void()> action) -> std::function<void()> {
        if (!action) return {};
        return [this, what, action = std::move(action)] { attempt(what, action); };
    };
    grid->pickChanged = guardedAction(tr("show the line"), std::move(picked));
    grid->opened = guardedAction(tr("open the line"), std::move(opened));
    if (headPressed) {
        grid->setSortable(true);
        grid->headPressed = [this, action = std::move(headPressed)](int column) {
            attempt(tr("sort the table"), [&] { action(column); });
        };
    }
    return grid;
}

QPushButton* Screen::button(const QString& name, const QString& caption, std::function<void()> action) {
    auto* push = new QPushButton(caption);
    push->setObjectName(name);
    push->setAccessibleName(spokenLabel(caption));
    connect(push, &QPushButton::clicked, this, [this, caption, action = std::move(action)] {
        if (checkFields()) attempt(tr("finish \"%1\"").arg(spokenLabel(caption)), action);
    });
    return push;
}

QPushButton* Screen::cancelButton(const QString& name, const QString& caption, std::function<void()> action) {
    auto* push = new QPushButton(caption);
    push->setObjectName(name);
    push->setAccessibleName(spokenLabel(caption));
    push->setProperty(leavesFreely, true);
    connect(push, &QPushButton::clicked, this, [this, caption, action = std::move(action)] {
        m_left.clear();
        attempt(tr("finish \"%1\"").arg(spokenLabel(caption)), action);
    });
    return push;
}

QPushButton* Screen::okButton(const QString& name, const QString& caption) {
    return button(name, caption, [this] {
        auto* window = qobject_cast<QMdiSubWindow*>(parentWidget());
        (window != nullptr ? static_cast<QWidget*>(window) : this)->close();
    });
}

QPushButton* Screen::opener(const QString& name, const QString& caption, const QString& screen) {
    auto* push = button(name, caption, [this, screen] { m_work.shell.open(screen); });
    if (!m_work.shell.exists(screen)) greyOut(push);
    return push;
}

QPushButton* Screen::disabledButton(const QString& name, const QString& caption) {
    auto* push = button(name, caption, [] {});
    greyOut(push);
    return push;
}

QLineEdit* Screen::shown(const QString& name, int characters) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    line->setMinimumWidth(look::fieldSize(line, characters).width());
    look::setShown(line);
    connect(line, &QLineEdit::textChanged, line, [line] { line->setCursorPosition(0); }); // a long name from its start
    return line;
}

QLineEdit* Screen::answerLine(const QString& name, int characters) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    look::setAnswer(line);
    line->setMinimumWidth(look::fieldSize(line, characters).width());
    return line;
}

SpinButtons* Screen::spin(const QString& name, NumberField* field, const SpinRule& rule,
                          std::function<void()> stepped) {
    const auto step = [this, field, rule, stepped = std::move(stepped)](int direction) {
        if (!checkFields()) return false;
        const auto next = spun(rule, field->value(), direction);
        if (!next) return false;
        if (next->rings) m_work.desk.bell();
        return attempt(tr("take the step"), [&] {
            field->enter(next->value);
            if (stepped) stepped();
        });
    };
    for (const auto& [key, direction] : {std::pair{Qt::Key_Up, 1}, std::pair{Qt::Key_Down, -1}}) {
        auto* shortcut = new QShortcut(key, field, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [field, step, way = direction] {
            if (step(way)) field->confirm();
        });
    }
    return new SpinButtons(name, [step, focus = rule.focus](int direction) {
        const bool taken = step(direction);
        if (QWidget* next = taken && focus ? focus() : nullptr) next->setFocus(Qt::OtherFocusReason);
        return taken;
    });
}

QLabel* Screen::heading(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QLabel* Screen::over(QWidget* field, const QString& name, const QString& text) {
    auto* label = new QLabel(text, field);
    label->setObjectName(name);
    label->setAutoFillBackground(true);
    auto* cover = new QHBoxLayout(field);
    cover->setContentsMargins(2, 2, 2, 2);
    cover->addWidget(label);
    label->hide();
    return label;
}

void Screen::untrackedField(Field* field) { field->edited = {}; }

void Screen::unsavedField(Field* field) {
    field->edited = [this] {
        if (!m_filling) takeEdit();
    };
}

QTabWidget* Screen::tabs(const QString& name, const std::vector<std::pair<QString, Item>>& pages) {
    auto* book = new QTabWidget;
    book->setObjectName(name);
    for (const auto& [caption, content] : pages) {
        auto* page = content.widget;
        if (page == nullptr) {
            page = new QWidget;
            page->setLayout(content.layout);
        }
        book->addTab(page, caption);
    }
    turnPagesByKey(book, m_area);
    return book;
}

void Screen::body(QLayout* content) {
    auto* holder = new QWidget;
    holder->setLayout(content);
    m_area->setWidget(holder);
}

} // namespace screenkit
