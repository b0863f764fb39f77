#pragma once
// frmCompanyInfo's model: the company block that heads the data sheets, six
// texts kept in section "Settings" of the settings store.

#include "forms/model/help_contexts.h"
#include "forms/model/form_model.h"

#include <array>
#include <string>

namespace kestrova {

class SettingsStore;
class UserInterface;

class CompanyInfoModel : public FormModel {
    Q_OBJECT

public:
    int helpTopic() const override { return help::CompanyInformation; }
    static constexpr int kFields = 6;
    struct Field {
        const char* control; // txtCompany ...
        const char* label;   // "Company:" ...
        const char* key;     // "Company" ...
    };
    static const std::array<Field, kFields>& fields();

    CompanyInfoModel(UserInterface& ui, SettingsStore& store, QObject* parent = nullptr);

    void Form_Load();
    // The close question: true when the form may close. Yes writes all six
    // keys, No closes without writing, Cancel keeps the form open.
    bool Form_QueryUnload();

    std::array<std::string, kFields> text; // the six fields, in the order of fields()

private:
    UserInterface& ui_;
    SettingsStore& store_;
};

} // namespace kestrova
