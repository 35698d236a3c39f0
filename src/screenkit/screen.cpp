#include "screenkit/screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "base/day.h"
#include "screenkit/enterwalk.h"
#include "screenkit/look.h"
#include "screenkit/pages.h"
#include "screenkit/trouble.h"

namespace screenkit {

namespace {
constexpr int mousePollTime = 20; // milliseconds
} // namespace

std::int16_t& untracked() {
    static std::int16_t flag = 0;
    return flag;
}

Screen::Screen(Workplace& workplace, const QString& name, const QString& caption, std::int16_t& changed)
    : m_work(workplace), m_changed(changed), m_area(new QScrollArea(this)), m_faults(new QLabel(this)) {
    setObjectName(name);
    setWindowTitle(caption);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
    m_faults->setObjectName("lblFaults");
    m_faults->setWordWrap(true);
    m_faults->setMargin(look::lineHeight(this) / 2);
    m_faults->hide();
    layout->addWidget(m_faults);
    m_leaving.setSingleShot(true);
    connect(&m_leaving, &QTimer::timeout, this, &Screen::checkLeft);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
}

Screen::~Screen() {
    disconnect(qApp, nullptr, this, nullptr);
    for (Field* field : m_fields)
        field->left = field->edited = {}; // the controls outlive this screen briefly and lose the focus meanwhile
}

void Screen::runPrint(PrintPanel* panel, const std::function<void(Destination)>& print, Destination destination) {
    {
        const BusyCursor busy;
        panel->processing->show();
        panel->repaint();
        attempt(tr("make the report"), [&] { print(destination); });
    }
    panel->processing->hide();
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

void Screen::announce(const std::vector<NumberField*>& results, const QString& of) {
    QStringList said;
    for (const NumberField* result : results)
        said << result->accessibleName() + " " + result->text();
    announce(of + said.join(", "));
}

void Screen::announce(const QString& said) { m_work.shell.announce(said); }

QWidget* Screen::firstField() {
    const auto inBody = [this](Field* field) { return m_area->isAncestorOf(field->widget()); }; // not in a panel
    const auto first = std::find_if(m_fields.begin(), m_fields.end(), inBody);
    return first != m_fields.end() ? (*first)->widget() : nullptr;
}

double Screen::today() const {
    const QDate today = m_work.desk.today();
    return *base::dayNumber(today.year(), today.month(), today.day());
}

void Screen::focusLater(QWidget* widget) {
    QTimer::singleShot(0, widget, [widget] { widget->setFocus(Qt::OtherFocusReason); });
}

void Screen::activate() {
    refill();
    cameToFront();
    if (std::exchange(m_opened, true)) {
        QTimer::singleShot(0, this, [this] { recoverFocus(); }); // after the window has restored the focus
        return;
    }
    QWidget* first = firstField();
    if (auto* field = dynamic_cast<Field*>(first))
        field->takeFocus();
    else if (first != nullptr)
        first->setFocus(Qt::OtherFocusReason);
}

void Screen::recoverFocus() {
    const QWidget* now = QApplication::focusWidget();
    if (m_dropped || !isVisible() || (now != nullptr && now != parentWidget())) return;
    for (Panel* made : m_panels)
        if (made->isVisible() && made->isEnabled()) made->takeFocus();
}

void Screen::refill() {
    const QScopedValueRollback flag(m_changed); // filling is no edit, even if it triggers signals
    const QScopedValueRollback filling(m_filling, true);
    for (Field* field : m_fields)
        field->fill();
    filled();
    tellFaults();
    showWhatIsStale();
}

void Screen::clientReplaced() {
    for (Field* field : m_fields)
        field->forgetEntry();
    refill();
}

int Screen::calculationOf(const QWidget* control) const {
    const Page page = pageOf(control);
    return page.book != nullptr && page.book == m_workedByPage ? page.index : 0;
}

std::vector<std::optional<double>> Screen::inputs(int page) const {
    const auto isInput = [this, page](Field* field) {
        if (calculationOf(field->widget()) != page) return false;
        if (std::find(m_asides.begin(), m_asides.end(), field) != m_asides.end()) return false;
        return std::none_of(m_panels.begin(), m_panels.end(),
                            [field](const Panel* made) { return made->isAncestorOf(field->widget()); });
    };
    std::vector<std::optional<double>> figures;
    for (Field* field : m_fields)
        figures.push_back(isInput(field) ? field->figure() : std::nullopt);
    return figures;
}

void Screen::takeEdit() {
    attempt(tr("take the entry"), [this] { edited(); });
    tellFaults();
    showWhatIsStale();
}

void Screen::calculated(int page, std::set<QWidget*> leftAsTheyWere) {
    m_workedFrom[page] = inputs(page);
    m_leftAsTheyWere[page] = std::move(leftAsTheyWere);
    showWhatIsStale();
}

void Screen::outdated(int page) {
    m_workedFrom.erase(page);
    showWhatIsStale();
}

void Screen::showWhatIsStale() {
    std::map<int, bool> stale; // by page
    for (QWidget* shown : m_calculated) {
        const int page = calculationOf(shown);
        if (!stale.contains(page)) stale[page] = !m_workedFrom.contains(page) || m_workedFrom.at(page) != inputs(page);
        const auto* line = qobject_cast<const QLineEdit*>(shown);
        const bool isEntry = line != nullptr && !line->isReadOnly();
        look::setStale(shown, (stale[page] || m_leftAsTheyWere[page].contains(shown)) && !isEntry);
    }
}

void Screen::tellFaults() {
    QStringList told;
    for (Field* field : m_fields)
        if (const auto fault = field->markStoredFault(); fault && inReach(field->widget()))
            told << tr("Please check %1: %2").arg(field->widget()->accessibleName(), fault->text);
    if (told.join('\n') == m_faults->text()) return;
    m_faults->setText(told.join('\n'));
    m_faults->setVisible(!told.isEmpty());
    if (!told.isEmpty()) makeRoom(this, sizeHint());
}

bool Screen::attempt(const QString& what, const std::function<void()>& action) {
    return guarded(m_work.desk, what, action);
}

void Screen::leave(Field* field) {
    m_left.push_back(field);
    // Later, since a message box must not open inside a focus change, and a clicked button checks by itself.
    m_leaving.start(0);
}

void Screen::checkLeft() {
    // A message box between the press and the release of a mouse button would leave the button pressed.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) return m_leaving.start(mousePollTime);
    const auto left = std::exchange(m_left, {});
    const QWidget* now = QApplication::focusWidget();
    if (m_dropped || !isVisible() || (now != nullptr && now->property(leavesFreely).toBool())) return;
    for (Field* field : left)
        if (!field->entry()->hasFocus() && inReach(field->widget()) && complain(field)) return;
}

bool Screen::inReach(const QWidget* widget) const {
    if (!widget->isEnabled()) return false;
    for (; widget != this; widget = widget->parentWidget())
        if (widget->isHidden() && qobject_cast<QStackedWidget*>(widget->parentWidget()) == nullptr) return false;
    return true; // another tab page can always be reached
}

bool Screen::complain(Field* field) {
    if (m_complaining) return true;
    const QScopedValueRollback complaining(m_complaining, true);
    const auto complaint = field->complaint();
    if (!complaint) {
        attempt(tr("take the entry"), [&] { settled(field); }); // a failure is told; the user may still leave
        tellFaults();
        showWhatIsStale();
        return false;
    }
    m_left.clear();
    if (complaint->rings) m_work.desk.bell();
    if (!complaint->text.isEmpty())
        m_work.desk.tell(BoxStyle::critical, complaint->text,
                         complaint->title.isEmpty() ? "Marlowbeck" : complaint->title);
    Field* next = complaint->focus != nullptr ? complaint->focus : field;
    bringToView(next->widget());
    next->takeFocus();
    return true;
}

bool Screen::checkFields() {
    m_left.clear();
    for (Field* field : m_fields)
        if (inReach(field->widget()) && complain(field)) return false;
    return true;
}

void Screen::bringToView(QWidget* widget) {
    for (Panel* made : m_panels)
        if (made->isAncestorOf(widget)) return made->bringToView(widget);
    if (m_area->widget() == nullptr || !m_area->widget()->isAncestorOf(widget)) return;
    for (Page page = pageOf(widget); page.book != nullptr; page = pageOf(page.book))
        page.book->setCurrentIndex(page.index);
    reveal(m_area, widget);
}

void Screen::enterPresses(QPushButton* button) {
    defaultButton(button);
    m_enterWalks = false;
}

void Screen::followFocus(QWidget* focused) {
    for (NumberField* field : m_givingBack)
        if (field == focused) m_enteredLast = field;
    // A click is already on its field: scrolling then would select text.
    if (focused != nullptr && QGuiApplication::mouseButtons() == Qt::NoButton) bringToView(focused);
}

void Screen::enterPressed() {
    auto* focused = QApplication::focusWidget();
    if (auto* push = qobject_cast<QPushButton*>(focused); push != nullptr)
        push->click();
    else if (QWidget* next = m_enterWalks ? nextEntry(focused) : nullptr; next != nullptr) {
        bringToView(next);
        next->setFocus(Qt::TabFocusReason);
    } else if (m_default != nullptr)
        pressDefault();
    else
        focusNextChild();
}

void Screen::pressDefault() {
    m_default->click();
    // The user is still in the field, and the next figure must replace this one, not extend it.
    if (auto* line = dynamic_cast<EntryLine*>(QApplication::focusWidget())) line->confirm();
}

QWidget* Screen::entryBehind(const QWidget* from, const QWidget* within) const {
    const auto isEntry = [](const QWidget* widget) { return [widget](Field* field) { return field->holds(widget); }; };
    // The focus chain includes all windows' controls and ends where it began.
    for (QWidget* next = from->nextInFocusChain(); next != within && next != from; next = next->nextInFocusChain())
        if (within->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && next->isEnabled() &&
            next->isVisibleTo(within) && !next->property(passedByEnter).toBool() &&
            std::any_of(m_fields.begin(), m_fields.end(), isEntry(next)))
            return next;
    return nullptr;
}

QWidget* Screen::nextEntry(const QWidget* from) const {
    const QWidget* content = m_area->widget();
    if (from == nullptr || content == nullptr || !content->isAncestorOf(from)) return nullptr;
    const Page here = pageOf(from);
    if (here.book == nullptr) return entryBehind(from, content);
    QWidget* onThisPage = entryBehind(from, here.book->widget(here.index));
    if (onThisPage != nullptr || here.book == m_workedByPage) return onThisPage;
    for (int page = here.index + 1; page < here.book->count(); ++page)
        if (QWidget* next = entryBehind(here.book->widget(page), here.book->widget(page)); next != nullptr) return next;
    return entryBehind(from, content); // the controls below the pages
}

void Screen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        enterPressed();
    else if (event->key() == Qt::Key_Escape && m_enteredLast != nullptr)
        m_enteredLast->giveBack();
    else
        QWidget::keyPressEvent(event);
}

void Screen::lend(double& figure, const QString& owner) { m_lent.emplace_back(&figure, owner); }

void Screen::giveBackLent() {
    for (const auto& [figure, owner] : m_lent) {
        if (!m_work.lent.giveBack(*figure)) continue;
        // The owner's screen may be in front, and would otherwise use a figure that it does not show.
        if (auto* shown = qobject_cast<Screen*>(m_work.shell.screen(owner)); shown != nullptr) shown->refill();
    }
}

bool Screen::commitPendingEdits() {
    giveBackLent();
    return true;
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
    closing();
    giveBackLent();
    emit closed(this);
}

void Screen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (Panel* made : m_panels)
        if (made->isVisible()) made->place();
}

QSize Screen::sizeHint() const {
    QSize size = m_area->widget() != nullptr ? m_area->widget()->sizeHint() : QSize();
    if (!m_faults->isHidden()) size.rheight() += m_faults->heightForWidth(size.width());
    for (const Panel* made : m_panels)
        size = size.expandedTo(made->sizeHint());
    return size + QSize(2, 2);
}

} // namespace screenkit
