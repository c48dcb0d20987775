// Has the copy made by a child process, for the library that reads old files may crash on a damaged one or never come
// to an end: what the child leaves behind is kept only if it ended well.
#include "convert.h"

#include "copy_catalogue.h"
#include "jet_reader.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/Exception.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zv::tool {
namespace {

constexpr int kRefused = 3; ///< status of a child that tells why it could not do it
constexpr qint64 kMegabyte = 1 << 20;

void limit(int what, qint64 amount) {
    const auto most = static_cast<rlim_t>(amount);
    const rlimit bound{most, most};
    ::setrlimit(static_cast<__rlimit_resource>(what), &bound);
}

/// The library talks on both channels; and a damaged file may lead it, or the copy, around in circles.
void confine(qint64 oldSize) {
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere >= 0) {
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
    }
    std::signal(SIGXFSZ, SIG_IGN);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, 60 + 2 * oldSize / kMegabyte);   // seconds; some hundred times what a sound file takes
    limit(RLIMIT_FSIZE, 64 * kMegabyte + 8 * oldSize); // bytes; a packed letter becomes two bytes at most
}

void tell(int channel, const QByteArray& words) {
    for (qsizetype told = 0; told < words.size();) {
        const ssize_t wrote = ::write(channel, words.constData() + told, static_cast<std::size_t>(words.size() - told));
        if (wrote < 0 && errno == EINTR) continue;
        if (wrote <= 0) return;
        told += wrote;
    }
}

/// What the child does. It leaves without any clearing up that the damaged state of the library could spoil.
[[noreturn]] void copyAndTell(const QString& old, const QString& part, int channel) {
    confine(QFileInfo(old).size());
    int status = kRefused;
    QByteArray words;
    try {
        words = copyCatalogue(old, part).toUtf8();
        status = 0;
    } catch (const SQLite::Exception& error) {
        words = QByteArray("The new catalogue could not be written: ") + error.what() + '.';
    } catch (const std::exception& error) {
        words = error.what();
    }
    tell(channel, words);
    ::_exit(status);
}

QByteArray allOf(int channel) {
    QByteArray words;
    char piece[4096];
    for (;;) {
        const ssize_t got = ::read(channel, piece, sizeof piece);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return words;
        words.append(piece, got);
    }
}

/// Copies in a child process. Returns the lines to print; ConvertError if the copy is not whole.
QByteArray copyAside(const QString& old, const QString& part) {
    int channel[2];
    if (::pipe2(channel, O_CLOEXEC) != 0) throw ConvertError(u"No pipe could be made."_s);
    const pid_t child = ::fork();
    if (child == 0) copyAndTell(old, part, channel[1]);
    ::close(channel[1]);
    QByteArray words = child < 0 ? QByteArray() : allOf(channel[0]);
    ::close(channel[0]);
    if (child < 0) throw ConvertError(u"No process could be started."_s);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return words;
    if (WIFEXITED(status) && WEXITSTATUS(status) == kRefused && !words.isEmpty())
        throw ConvertError(QString::fromUtf8(words));
    throw ConvertError(u"%1 is damaged: reading it had to be given up."_s.arg(old));
}

/// The file under which the copy is made; removed, with its journal, unless it got its own name.
class PartFile {
  public:
    /// ConvertError if the old catalogue itself bears the name.
    PartFile(QString path, const QString& old) : path_(std::move(path)) {
        for (const QString& name : {path_, journal()})
            if (isThere(name) && QFileInfo(name).canonicalFilePath() == QFileInfo(old).canonicalFilePath())
                throw ConvertError(u"%1 bears a name that is needed for the copy. Please rename it."_s.arg(old));
        remove();
    }
    ~PartFile() { remove(); }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const QString& path() const { return path_; }

  private:
    QString journal() const { return path_ + u"-journal"_s; }
    void remove() const {
        QFile::remove(path_);
        QFile::remove(journal());
    }

    QString path_;
};

} // namespace

int convertCatalogue(const QString& old, const QString& file) {
    try {
        if (isThere(file)) throw ConvertError(u"%1 is there already; it was left as it is."_s.arg(file));
        requireJetFile(old);
        const PartFile part(file + u"-part"_s, old);
        const QByteArray words = copyAside(old, part.path());
        syncToDisk(part.path());
        Name(part.path(), file);
        std::printf("%s%s\n", words.constData(), qPrintable(file));
        return 0;
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s could not be made: error %d, %s\n", qPrintable(file), error.number(),
                     qPrintable(error.text()));
    } catch (const ConvertError& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}

} // namespace zv::tool
