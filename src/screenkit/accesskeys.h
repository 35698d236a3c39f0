#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace screenkit {

/// Gives the access keys of the screen that has the focus precedence over the menu bar's: some captions are fixed, so a
/// letter may stand in both ("&Print" and "&Personal Details"), and the toolkit alone would take them in turns. The
/// menu bar keeps F10, Alt alone, and every letter that the screen does not use; captions that are not fixed leave it
/// F, P, A, W and H. A field's letter selects what it holds, a tab's letter leads into its page.
class AccessKeys : public QObject {
    Q_OBJECT
public:
    explicit AccessKeys(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace screenkit
