#include "host/Translator.h"

#include <QTranslator>
#include <map>
#include <memory>

namespace ostrel {
namespace {

constexpr const char* kTable = ":/i18n/ostrel-configurator_";
constexpr const char* kContext = "Words";

}  // namespace

std::function<std::string(std::string_view language, std::string_view text)> MakeTranslator() {
  const auto tables = std::make_shared<std::map<std::string, QTranslator, std::less<>>>();
  return [tables](std::string_view language, std::string_view text) {
    const auto [table, isNew] = tables->try_emplace(std::string(language));
    if (isNew) {
      const std::string path = kTable + table->first + ".qm";
      static_cast<void>(table->second.load(QString::fromStdString(path)));
    }
    const QString said = table->second.translate(kContext, std::string(text).c_str());
    return said.isEmpty() ? std::string(text) : said.toStdString();
  };
}

}  // namespace ostrel
