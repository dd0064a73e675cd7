#include "tools/FirmwareChoice.h"

#include <utility>

#include "tools/IntelHex.h"

namespace ostrel {
namespace {

constexpr std::string_view kLoaderName = "CopyFlash";
/// Beyond the memory of any logger by far.
constexpr std::size_t kMostSensible = 16U * 1024U * 1024U;
constexpr std::size_t kMostRead = 256U * 1024U * 1024U;

/// What of a file goes down the line: a record that ends with the file loses its last digit.
std::string_view SentPart(std::string_view stored) {
  return stored.substr(0, SentOctets(stored.size()));
}

std::string_view NameOf(std::string_view path) { return path.substr(path.find_last_of("/\\") + 1); }

std::string HexWords(const HexFault& fault,
                     const std::function<std::string(std::string_view)>& translate) {
  const auto atLine = [&](std::string_view words) {
    return translate("Linea") + " " + std::to_string(fault.line) + ": " + translate(words);
  };
  switch (fault.kind) {
    case HexFault::Kind::None:
      break;
    case HexFault::Kind::NoRecord:
      return atLine("no es un registro Intel hex");
    case HexFault::Kind::BadChecksum:
      return atLine("la suma de control es incorrecta");
    case HexFault::Kind::NoEnd:
      return translate("falta el registro final");
  }
  return {};
}

}  // namespace

bool AreNamed(const FirmwarePaths& paths) {
  return !paths.image.empty() && paths.loader.find(kLoaderName) != std::string::npos;
}

FileResult ReadFirmware(Files& files, const FirmwarePaths& paths, FirmwareFiles& into,
                        std::string& failed) {
  for (const auto& [path, octets] :
       {std::pair{&paths.image, &into.image}, {&paths.loader, &into.loader}}) {
    failed = *path;
    if (FileResult read = files.ReadUpTo(*path, kMostRead, *octets); !read.Ok()) return read;
  }
  into.name = paths.image;
  return {};
}

std::vector<std::string> FirmwareDoubts(
    const FirmwarePaths& paths, const FirmwareFiles& files,
    const std::function<std::string(std::string_view text)>& translate) {
  std::vector<std::string> doubts;
  for (const auto& [path, octets] :
       {std::pair{&paths.image, &files.image}, {&paths.loader, &files.loader}})
    if (const HexFault fault = FirstHexFault(SentPart(*octets)); fault.kind != HexFault::Kind::None)
      doubts.push_back(std::string(NameOf(*path)) + ": " + HexWords(fault, translate));
  if (files.image.size() > kMostSensible)
    doubts.push_back(std::string(NameOf(paths.image)) + ": " + translate("ocupa mas de 16 MB"));
  const bool isImageNamedLoader = NameOf(paths.image).find(kLoaderName) != std::string::npos;
  if (isImageNamedLoader || files.loader.size() >= files.image.size())
    doubts.push_back(translate("Los dos archivos parecen intercambiados"));
  return doubts;
}

}  // namespace ostrel
