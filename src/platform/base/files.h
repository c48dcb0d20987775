// The platform's small file services. A path is given as the logic builds it, with "\" before the file's name.
#pragma once

#include <QString>

namespace zv {

/// The path as this machine writes it: the last "\" of what the logic composes becomes the native separator.
QString nativePath(const QString& path);

/// Whether anything of that name exists: a file, a folder, a link that leads nowhere.
bool isThere(const QString& path);

/// Whether a file or folder may be written. One without any permission to write is read-only for every user.
bool isWritable(const QString& path);

/// The name of the file as it stands on the disk, "" if there is none (or only a folder, or a hidden file).
QString Dir(const QString& path);

/// Deletes a file. Error 53 if there is none, 75 if it or its folder is read-only, 70 if it is in use.
void Kill(const QString& path);

/// Renames a file. Error 53 without a source, 58 if the target exists, 76 if a folder is missing, 75 otherwise.
void Name(const QString& from, const QString& to);

/// Forces a file's contents and its folder's entry to the disk. Error 75 if that fails.
void syncToDisk(const QString& path);

} // namespace zv
