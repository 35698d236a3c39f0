#pragma once

#include <QModelIndex>

#include "datastore/clientlist.h"
#include "screenkit/screen.h"

class QLineEdit;
class QListView;

namespace datastore {

class ClientListModel;

/// The clients of the file in surname order; loads the one chosen. The toolbar is off while it is open.
class frmBrowse : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmBrowse(screenkit::Workplace& workplace);

protected:
    QWidget* firstField() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildBody();
    void fillList();
    void showEntry(const ClientLine& client);
    void narrow(const QString& text);
    void choose(int row);
    QModelIndex chosen() const;
    void load();

    ClientListModel* m_model;
    QLineEdit* m_search;
    QListView* m_list;
    QLineEdit *m_name, *m_description, *m_birthDate;
};

} // namespace datastore
