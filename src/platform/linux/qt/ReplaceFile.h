#pragma once

#include <QByteArray>
#include <filesystem>

namespace vantorel {

/// Puts `bytes` in place of what stands in the file at `path`, which need not be there, and neither its
/// directory. Whatever happens, power failure included, the file then has the old or the new contents as a
/// whole; it has the new ones, on the disk, when the call returns. A symbolic link stays, and its target is
/// replaced. Throws a std::exception that says what failed.
void replaceFile(const std::filesystem::path& path, const QByteArray& bytes);

/// Removes what calls of replaceFile for `path` left behind when the program was killed within them.
void removeUnfinished(const std::filesystem::path& path);

}  // namespace vantorel
