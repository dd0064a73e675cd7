#include "store/IniTool.h"

#include "base/CodePage.h"
#include "base/Printable.h"
#include "base/Utf8.h"

namespace ostrel {
namespace {

std::string_view WithoutQuotes(std::string_view value) {
  if (value.size() < 2 || value.front() != value.back()) return value;
  if (value.front() != '"' && value.front() != '\'') return value;
  return value.substr(1, value.size() - 2);
}

}  // namespace

std::string IniTool::ProfileRead(std::string_view section, std::string_view key,
                                 const std::string& path) {
  if (!index_ || path != path_) {
    index_.emplace(files_.Read(path).value_or(""));
    path_ = path;
  }
  return ProfileValue(*index_, section, key);
}

std::string ProfileValue(ProfileIndex& index, std::string_view section, std::string_view key) {
  const std::string_view value = index.Find(ToCodePage(section), ToCodePage(key));
  return FromCodePage(WithoutQuotes(value).substr(0, kProfileValueLimit));
}

std::string_view ProfilePart(std::string_view value) { return WithoutQuotes(WithoutBlanks(value)); }

std::string LossInProfile(std::string_view text) {
  const std::size_t length = CharacterCount(text);
  if (UpToControl(text).size() < text.size())
    return "the file keeps it up to its control character alone";
  if (WithoutBlanks(text).size() < text.size())
    return "the file does not keep the blanks around it";
  if (ProfilePart(text).size() < text.size()) return "the file does not keep the quotes around it";
  if (length > kProfileValueLimit)
    return "the file gives back " + std::to_string(kProfileValueLimit) + " of its " +
           std::to_string(length) + " characters";
  if (FromCodePage(ToCodePage(text)) != text) return "the file has no code for some of its letters";
  return {};
}

void ConfWriteKey(std::string_view value, std::string_view section, std::string_view key,
                  IniClass& ini) {
  ini.WriteKey(section, key, UpToControl(value));
}

std::string ConfReadKey(IniTool& tool, std::string_view section, std::string_view key,
                        const std::string& path) {
  return tool.ProfileRead(section, key, path);
}

}  // namespace ostrel
