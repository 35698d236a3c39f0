#include "screenkit/screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "screenkit/look.h"
#include "screenkit/trouble.h"

namespace screenkit {

namespace {
constexpr const char* leavesFreely = "leavesFreely"; // a button that no failed check may hold back
constexpr int mousePollTime = 20;                    // milliseconds
} // namespace

std::int16_t& untracked() {
    static std::int16_t flag = 0;
    return flag;
}

Screen::Screen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed)
    : m_work(workplace), m_changed(changed), m_area(new QScrollArea(this)) {
    setObjectName(name);
    setWindowTitle(caption);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
    m_leaving.setSingleShot(true);
    connect(&m_leaving, &QTimer::timeout, this, &Screen::checkLeft);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
}

Screen::~Screen() = default;

template <class F>
F* Screen::keep(F* field) {
    Field* base = field;
    m_fields.push_back(base);
    base->edited = [this] {
        if (m_filling) return;
        m_changed = 1;
        attempt(tr("take the entry"), [this] { edited(); });
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

DateField* Screen::date(const QString& name, Bound<double> place) {
    return keep(new DateField(name, std::move(place), m_work.desk));
}

OptionGroup* Screen::options(const QString& name, const QStringList& captions, Bound<int> place,
                             std::function<void(int)> picked, Qt::Orientation orientation) {
    auto* group = keep(new OptionGroup(name, captions, std::move(place), orientation));
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
    push->setEnabled(m_work.shell.exists(screen));
    return push;
}

QPushButton* Screen::later(const QString& name, const QString& caption) {
    auto* push = button(name, caption, [] {});
    push->setEnabled(false);
    return push;
}

QLineEdit* Screen::shown(const QString& name, int characters) {
    auto* line = new QLineEdit;
    line->setObjectName(name);
    line->setMinimumWidth(look::fieldSize(line, characters).width());
    look::setResult(line, true);
    return line;
}

SpinButtons* Screen::spin(const QString& name, NumberField* field, std::function<void(int)> step) {
    const auto stepChecked = [this, step = std::move(step)](int direction) {
        return checkFields() && attempt(tr("take the step"), [&] { step(direction); });
    };
    for (const auto& [key, direction] : {std::pair{Qt::Key_Up, 1}, std::pair{Qt::Key_Down, -1}}) {
        auto* shortcut = new QShortcut(key, field, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [stepChecked, way = direction] { stepChecked(way); });
    }
    return new SpinButtons(name, stepChecked);
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
    return book;
}

void Screen::body(QLayout* content) {
    auto* holder = new QWidget;
    holder->setLayout(content);
    m_area->setWidget(holder);
}

Panel* Screen::panel(const QString& name, const QString& title, Item content,
                     std::initializer_list<QPushButton*> buttons) {
    auto* made = new Panel(name, title, m_area, this);
    auto* layout = new QVBoxLayout;
    if (content.widget != nullptr) layout->addWidget(content.widget, 1);
    if (content.layout != nullptr) layout->addLayout(content.layout, 1);
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    for (QPushButton* push : buttons)
        foot->addWidget(push);
    layout->addLayout(foot);
    made->setContent(layout);
    if (buttons.size() > 0) {
        made->setDefaultButton(*buttons.begin());
        made->setCancelButton(*(buttons.end() - 1));
    }
    m_panels.push_back(made);
    return made;
}

Panel* Screen::printPanel(std::initializer_list<Item> choices, std::function<void(Destination)> print) {
    auto* processing = new QLabel(" PROCESSING !");
    processing->setObjectName("lblProcessing");
    processing->setAlignment(Qt::AlignCenter);
    QSizePolicy kept = processing->sizePolicy();
    kept.setRetainSizeWhenHidden(true); // it must be in its place when it is painted, before the report begins
    processing->setSizePolicy(kept);
    processing->hide();
    auto* content = column(choices);
    static_cast<QVBoxLayout*>(content)->addWidget(processing);
    auto made = std::make_shared<Panel*>(nullptr);
    const auto run = [this, made, print](Destination to) { runPrint(*made, print, to); };
    auto* view = button("cmdVR", "&View/Export report", [run] { run(Destination::preview); });
    auto* direct = button("cmdPD", "P&rint directly to printer", [run] { run(Destination::printer); });
    auto* cancel = cancelButton("cmdPrintCancel", "C&ancel", [made] { (*made)->close(); });
    *made = panel("fraPrint", tr("Print"), content, {view, direct, cancel});
    return *made;
}

void Screen::runPrint(Panel* panel, const std::function<void(Destination)>& print, Destination destination) {
    auto* processing = panel->findChild<QLabel*>("lblProcessing");
    {
        const BusyCursor busy;
        processing->show();
        panel->repaint();
        attempt(tr("make the report"), [&] { print(destination); });
    }
    processing->hide();
    panel->close();
}

void Screen::showGrid(const QString& title, std::vector<GridColumn> columns, std::vector<std::vector<double>> rows,
                      QWidget* focusAfter) {
    if (m_gridPanel == nullptr) {
        m_grid = new Grid("grdPayments");
        auto* close = cancelButton("cmdGridClose", "&OK", [this] {
            m_grid->clear();
            m_gridPanel->close();
            if (m_afterGrid != nullptr) m_afterGrid->setFocus(Qt::OtherFocusReason);
        });
        m_gridPanel = panel("fraGrid", title, m_grid, {close});
    }
    m_afterGrid = focusAfter;
    m_gridPanel->setTitle(title);
    m_grid->show(std::move(columns), std::move(rows));
    m_grid->setAccessibleName(title);
    m_gridPanel->open(m_grid);
}

QWidget* Screen::firstField() { return m_fields.empty() ? nullptr : m_fields.front()->widget(); }

void Screen::focusLater(QWidget* widget) {
    QTimer::singleShot(0, widget, [widget] { widget->setFocus(Qt::OtherFocusReason); });
}

void Screen::activate() {
    refill();
    if (std::exchange(m_opened, true)) return;
    QWidget* first = firstField();
    if (auto* field = dynamic_cast<Field*>(first))
        field->takeFocus();
    else if (first != nullptr)
        first->setFocus(Qt::OtherFocusReason);
}

void Screen::refill() {
    const QScopedValueRollback flag(m_changed); // filling is no edit, whatever it sets off
    const QScopedValueRollback filling(m_filling, true);
    for (Field* field : m_fields)
        field->fill();
    filled();
}

bool Screen::attempt(const QString& what, const std::function<void()>& action) {
    return guarded(m_work.desk, what, action);
}

void Screen::leave(Field* field) {
    m_left.push_back(field);
    // Queued: a box from inside a focus change would nest in it, and a button that was clicked checks on its own.
    m_leaving.start(0);
}

void Screen::checkLeft() {
    // A box that comes up between the mouse's press and its release would leave the button hanging.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return m_leaving.start(mousePollTime);
    const auto left = std::exchange(m_left, {});
    const QWidget* now = QApplication::focusWidget();
    if (m_dropped || !isVisible() || (now != nullptr && now->property(leavesFreely).toBool())) return;
    for (Field* field : left)
        if (!field->widget()->hasFocus() && inReach(field->widget()) && complain(field)) return;
}

bool Screen::inReach(const QWidget* widget) const {
    if (!widget->isEnabled()) return false;
    for (; widget != this; widget = widget->parentWidget())
        if (widget->isHidden() && qobject_cast<QStackedWidget*>(widget->parentWidget()) == nullptr) return false;
    return true; // another page of tabs is a click away
}

bool Screen::complain(Field* field) {
    if (m_complaining) return true;
    const QScopedValueRollback complaining(m_complaining, true);
    const auto complaint = field->complaint();
    if (!complaint) return false;
    m_left.clear();
    m_work.desk.tell(BoxStyle::critical, complaint->text, complaint->title.isEmpty() ? "Marlowbeck" : complaint->title);
    bringToView(field->widget());
    field->takeFocus();
    return true;
}

bool Screen::checkFields() {
    m_left.clear();
    for (Field* field : m_fields)
        if (inReach(field->widget()) && complain(field)) return false;
    return true;
}

void Screen::bringToView(QWidget* widget) {
    if (m_area->widget() == nullptr || !m_area->widget()->isAncestorOf(widget)) return; // in a panel
    for (QWidget* page = widget; page != nullptr && page != this; page = page->parentWidget()) {
        auto* stack = page->parentWidget() != nullptr ? page->parentWidget()->parentWidget() : nullptr;
        if (auto* book = qobject_cast<QTabWidget*>(stack); book != nullptr && book->indexOf(page) >= 0)
            book->setCurrentWidget(page);
    }
    const QRect place(widget->mapTo(m_area->widget(), QPoint()), widget->size());
    const QPoint middle = place.center();
    const int gap = look::lineHeight(this) / 4; // the frame of the focus as well
    m_area->ensureVisible(middle.x(), middle.y(), place.width() / 2 + gap, place.height() / 2 + gap);
}

void Screen::followFocus(QWidget* focused) {
    // A click has found its field already: moving it away under the mouse would select text.
    if (focused != nullptr && QGuiApplication::mouseButtons() == Qt::NoButton) bringToView(focused);
}

void Screen::enterPressed() {
    auto* focused = QApplication::focusWidget();
    if (auto* push = qobject_cast<QPushButton*>(focused); push != nullptr)
        push->click();
    else if (QWidget* next = nextEntry(focused); next != nullptr)
        next->setFocus(Qt::TabFocusReason);
    else if (m_default != nullptr)
        m_default->click();
    else
        focusNextChild();
}

QWidget* Screen::nextEntry(const QWidget* from) const {
    const QWidget* content = m_area->widget(); // the chain of all windows' controls comes back to it
    const auto isEntry = [](const QWidget* widget) {
        return [widget](Field* field) { return field->widget() == widget || field->widget()->isAncestorOf(widget); };
    };
    if (from == nullptr || content == nullptr || !content->isAncestorOf(from)) return nullptr;
    for (QWidget* next = from->nextInFocusChain(); next != content && next != from; next = next->nextInFocusChain())
        if (content->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && next->isEnabled() &&
            next->isVisible() && std::any_of(m_fields.begin(), m_fields.end(), isEntry(next)))
            return next;
    return nullptr;
}

void Screen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        enterPressed();
    else
        QWidget::keyPressEvent(event);
}

void Screen::drop() {
    m_dropped = true;
    auto* window = qobject_cast<QMdiSubWindow*>(parentWidget());
    (window != nullptr ? static_cast<QWidget*>(window) : this)->close();
}

void Screen::closeEvent(QCloseEvent* event) {
    bool closes = m_dropped;
    if (!closes && checkFields()) attempt(tr("close the window"), [&] { closes = mayClose(); });
    if (!closes) {
        event->ignore();
        return;
    }
    m_dropped = true;
    event->accept();
    emit closed(this);
}

void Screen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (Panel* made : m_panels)
        if (made->isVisible()) made->place();
}

QSize Screen::sizeHint() const {
    QSize size = m_area->widget() != nullptr ? m_area->widget()->sizeHint() : QSize();
    for (const Panel* made : m_panels)
        size = size.expandedTo(made->sizeHint());
    return size + QSize(2, 2);
}

} // namespace screenkit
