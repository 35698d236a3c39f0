#pragma once

#include "assessment/assessment.h"
#include "screenkit/screen.h"

namespace datastore {

/// Saves the client under another name as a new one. The six values shown are a copy: Cancel leaves the client
/// unchanged.
class frmSaveFileAs : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmSaveFileAs(screenkit::Workplace& workplace);

    void clientReplaced() override;

protected:
    void filled() override;

private:
    screenkit::TextField* namePart(const QString& name, std::string& part, int size);
    void NameFunc();
    void saveAs();
    void takeOver();

    assessment::Client m_client;
    assessment::PersonalDetails m_details;
    QLineEdit* m_name;
    screenkit::TextField* m_surname;
};

} // namespace datastore
