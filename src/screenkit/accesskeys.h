#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace screenkit {

/// Gives the access keys of the screen that has the focus precedence over the menu bar's: captions are fixed, so many a
/// letter stands in both ("&Print" and "&Personal Details"), and the toolkit alone would take them in turns. The menu
/// bar keeps F10 and every letter that the screen does not use.
class AccessKeys : public QObject {
    Q_OBJECT
public:
    explicit AccessKeys(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace screenkit
