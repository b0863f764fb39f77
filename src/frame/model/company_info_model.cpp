#include "frame/model/company_info_model.h"

#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"

namespace kestrova {

const std::array<CompanyInfoModel::Field, CompanyInfoModel::kFields>& CompanyInfoModel::fields()
{
    static const std::array<Field, kFields> table{{
        {"txtCompany", "Company:", "Company"},
        {"txtAddress", "Address:", "Address"},
        {"txtCity", "City:", "City"},
        {"txtState", "State:", "State"},
        {"txtZip", "Postal Code:", "Zip"},
        {"txtCountry", "Country:", "Country"},
    }};
    return table;
}

CompanyInfoModel::CompanyInfoModel(UserInterface& ui, SettingsStore& store, QObject* parent)
    : FormModel(parent), ui_(ui), store_(store)
{
}

void CompanyInfoModel::Form_Load()
{
    ChangeNotice notice(*this);
    for (size_t i = 0; i < fields().size(); ++i)
        text[i] = store_.get("Settings", fields()[i].key, "");
}

bool CompanyInfoModel::Form_QueryUnload()
{
    const MessageAnswer answer = ui_.ask("Company Information", "Save changes?", MessageIcon::Question,
                                         MessageButtons::YesNoCancel, MessageAnswer::Yes);
    if (answer == MessageAnswer::Cancel)
        return false;
    if (answer == MessageAnswer::Yes) {
        for (size_t i = 0; i < fields().size(); ++i)
            store_.save("Settings", fields()[i].key, text[i]);
        store_.sync();
    }
    return true;
}

} // namespace kestrova
