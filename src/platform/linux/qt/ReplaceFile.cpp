#include "ReplaceFile.h"

#include <unistd.h>

#include <QTemporaryFile>
#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

fs::path behindLinks(fs::path path) {
  while (fs::is_symlink(path)) path = path.parent_path() / fs::read_symlink(path);
  return path;
}

/// What the names of files that are to replace the one at `target` begin with.
fs::path unfinished(fs::path target) { return target += ".unfinished-"; }

}  // namespace

void replaceFile(const fs::path& path, const QByteArray& bytes) {
  const fs::path target = behindLinks(path);
  fs::create_directories(target.parent_path());
  QTemporaryFile file(QString::fromStdString(unfinished(target).string() + "XXXXXX"));
  const bool isWritten = file.open() && file.write(bytes) == bytes.size() && file.flush();
  if (!isWritten) throw std::runtime_error(file.errorString().toStdString());
  if (fsync(file.handle()) != 0) throw std::system_error(errno, std::generic_category(), "fsync");
  fs::rename(file.fileName().toStdString(), target);
  file.setAutoRemove(false);
}

void removeUnfinished(const fs::path& path) {
  const fs::path prefix = unfinished(behindLinks(path));
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(prefix.parent_path(), error)) {
    if (entry.path().string().rfind(prefix.string(), 0) == 0) fs::remove(entry.path(), error);
  }
}

}  // namespace vantorel
