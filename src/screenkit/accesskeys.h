#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace screenkit {

/// Gives the access keys of the screen with the focus precedence over the menu bar's. Some captions are fixed, so both
/// may use a letter ("&Print" and "&Personal Details"), and Qt would then pick them in turn. The menu bar keeps F10,
/// Alt alone, and all letters that the screen does not use; captions that are not fixed leave it F, P, A, W and H. A
/// field's letter selects the field's content, a tab's letter moves the focus into its page.
class AccessKeys : public QObject {
    Q_OBJECT
public:
    explicit AccessKeys(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace screenkit
