// File services over POSIX calls: their error codes tell the platform's numbers apart.
#include "platform/base/files.h"

#include "platform/base/runtime_error.h"
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zv {
namespace {

QString folderOf(const QString& path) { return QFileInfo(path).absolutePath(); }

void syncHandle(const QString& path, int flags) {
    const int handle = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (handle < 0) throw RuntimeError(75);
    const bool done = ::fsync(handle) == 0;
    ::close(handle);
    if (!done) throw RuntimeError(75);
}

} // namespace

QString nativePath(const QString& path) {
    const qsizetype separator = path.lastIndexOf(u'\\');
    if (separator < 0 || separator < path.lastIndexOf(u'/')) return path; // a "\" in a folder's own name stays
    QString native = path;
    native[separator] = u'/';
    return native;
}

bool isThere(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(nativePath(path)).constData(), &info) == 0;
}

bool isWritable(const QString& path) {
    const QByteArray name = QFile::encodeName(nativePath(path));
    struct stat info {};
    return ::stat(name.constData(), &info) == 0 && (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 &&
           ::access(name.constData(), W_OK) == 0;
}

QString Dir(const QString& path) {
    const QFileInfo file(nativePath(path));
    if (!file.isFile() || file.fileName().startsWith(u'.')) return {};
    QString otherCase;
    for (QDirIterator entries(folderOf(file.filePath()), QDir::Files | QDir::Hidden | QDir::System);
         entries.hasNext();) {
        entries.next();
        if (entries.fileName() == file.fileName()) return entries.fileName();
        if (entries.fileName().compare(file.fileName(), Qt::CaseInsensitive) == 0) otherCase = entries.fileName();
    }
    return otherCase;
}

void Kill(const QString& path) {
    const QString native = nativePath(path);
    struct stat info {};
    const QByteArray name = QFile::encodeName(native);
    if (::lstat(name.constData(), &info) != 0 || S_ISDIR(info.st_mode)) throw RuntimeError(53);
    // The system asks for the folder's permission only; the platform refuses a read-only file as well.
    if ((!S_ISLNK(info.st_mode) && !isWritable(native)) || !isWritable(folderOf(native))) throw RuntimeError(75);
    if (::unlink(name.constData()) == 0) return;
    if (errno == ENOENT) throw RuntimeError(53);
    throw RuntimeError(errno == EBUSY || errno == ETXTBSY ? 70 : 75);
}

void Name(const QString& from, const QString& to) {
    const QString source = nativePath(from);
    const QString target = nativePath(to);
    if (!isThere(folderOf(source)) || !isThere(folderOf(target))) throw RuntimeError(76);
    if (!isThere(source)) throw RuntimeError(53);
    if (isThere(target)) throw RuntimeError(58);
    if (::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) != 0)
        throw RuntimeError(75);
    syncHandle(folderOf(target), O_RDONLY | O_DIRECTORY);
}

void syncToDisk(const QString& path) {
    const QString native = nativePath(path);
    syncHandle(native, O_RDONLY);
    syncHandle(folderOf(native), O_RDONLY | O_DIRECTORY);
}

} // namespace zv
