#include "pages/PageFile.h"

#include "store/IniClass.h"
#include "store/IniTool.h"

namespace ostrel {

void SaveFields(const Page& page, const PageContext& context, IniClass& document) {
  page.VisitFields(context.conf,
                   [&](const std::string& section, const std::string& key, FieldRef field) {
                     const std::string text = FieldText(field, context.profile.IsS100);
                     if (std::holds_alternative<ConfPhone*>(field) && text.empty()) return;
                     ConfWriteKey(text, section, key, document);
                   });
}

void RestoreFields(const Page& page, const PageContext& context) {
  page.VisitFields(context.conf,
                   [&](const std::string& section, const std::string& key, FieldRef field) {
                     SetFieldText(field, context.ConfReadKey(section, key));
                   });
}

}  // namespace ostrel
