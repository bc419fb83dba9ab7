#include "shared/diagnosis/container_contents.hpp"

#include "shared/settings.hpp"

namespace mirune {
namespace {

using messages::FileState;

messages::FileDiagnosis withFileProblem(messages::FileDiagnosis file, FileState state, std::string_view problem) {
  file.state = state;
  ProblemLines lines;
  lines.add(problem);
  lines.appendTo(file.problems);
  return file;
}

}  // namespace

std::optional<std::string> openSettings(const std::optional<std::string>&, const uikit::Platform& platform,
                                        ContainerContents& contents) {
  contents.settings = sharedSettings(platform);
  if (contents.settings) return std::nullopt;
  return "no property list whose root is a dictionary";
}

messages::FileDiagnosis readSharedFile(const uikit::Platform& platform, const std::filesystem::path& container,
                                       std::string_view name, DecodeFile decode, ContainerContents& contents) {
  messages::FileDiagnosis file{.file = std::string(name)};
  if (const auto status = foundation::fileStatus(container / name)) {
    file.modified = status->modified;
    file.size = status->size;
  }
  const auto read = foundation::readFile(container / name);
  const bool isMissing = !read && read.error() == std::errc::no_such_file_or_directory;
  if (!read && !isMissing) {
    return withFileProblem(std::move(file), FileState::unreadable, read.error().message());
  }
  const auto refusal = decode(read ? std::optional(*read) : std::nullopt, platform, contents);
  if (refusal) return withFileProblem(std::move(file), FileState::refused, *refusal);
  file.state = isMissing ? FileState::missing : FileState::decoded;
  return file;
}

}  // namespace mirune
