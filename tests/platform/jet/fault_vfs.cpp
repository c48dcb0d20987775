// A layer below SQLite that makes the disk fail.
#include "fault_vfs.h"

#include <new>
#include <sqlite3.h>

namespace zv::test {

struct FaultVfs::State {
    sqlite3_vfs vfs{};
    sqlite3_vfs* below = nullptr;
    int passing = 1 << 30;
    int failures = 0;
    Fault fault = Fault::NoSpace;
    bool failed = false;

    /// SQLITE_OK, or the code that this change of an open file fails with.
    int change(int brokenCode, bool takesSpace = false) {
        if (fault == Fault::ReadOnly || !failsNow()) return SQLITE_OK;
        return takesSpace && fault == Fault::NoSpace ? SQLITE_FULL : brokenCode;
    }

    /// The same for making a file: a disk that becomes read-only is noticed there first.
    int creation() { return fault == Fault::ReadOnly && failsNow() ? SQLITE_READONLY_DIRECTORY : SQLITE_OK; }

    bool failsNow() {
        if (passing > 0) {
            --passing;
            return false;
        }
        if (failures <= 0) return false;
        --failures;
        return failed = true;
    }
};

namespace {

using State = FaultVfs::State;

/// What SQLite sees as a file: its methods, then the state and the file below, which lies right behind.
struct File {
    sqlite3_file base;
    State* state;
    sqlite3_file* below() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

File& fileOf(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }
sqlite3_file* below(sqlite3_file* file) { return fileOf(file).below(); }
State& stateOf(sqlite3_vfs* vfs) { return *static_cast<State*>(vfs->pAppData); }

int closeFile(sqlite3_file* file) { return below(file)->pMethods->xClose(below(file)); }
int readFile(sqlite3_file* file, void* data, int size, sqlite3_int64 at) {
    return below(file)->pMethods->xRead(below(file), data, size, at);
}
int writeFile(sqlite3_file* file, const void* data, int size, sqlite3_int64 at) {
    const int code = fileOf(file).state->change(SQLITE_IOERR_WRITE, true);
    return code != SQLITE_OK ? code : below(file)->pMethods->xWrite(below(file), data, size, at);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    const int code = fileOf(file).state->change(SQLITE_IOERR_TRUNCATE);
    return code != SQLITE_OK ? code : below(file)->pMethods->xTruncate(below(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
    const int code = fileOf(file).state->change(SQLITE_IOERR_FSYNC);
    return code != SQLITE_OK ? code : below(file)->pMethods->xSync(below(file), flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) { return below(file)->pMethods->xFileSize(below(file), size); }
int lockFile(sqlite3_file* file, int level) { return below(file)->pMethods->xLock(below(file), level); }
int unlockFile(sqlite3_file* file, int level) { return below(file)->pMethods->xUnlock(below(file), level); }
int checkLock(sqlite3_file* file, int* locked) {
    return below(file)->pMethods->xCheckReservedLock(below(file), locked);
}
int controlFile(sqlite3_file* file, int operation, void* argument) {
    return below(file)->pMethods->xFileControl(below(file), operation, argument);
}
int sectorSize(sqlite3_file* file) { return below(file)->pMethods->xSectorSize(below(file)); }
int characteristics(sqlite3_file* file) { return below(file)->pMethods->xDeviceCharacteristics(below(file)); }

constexpr sqlite3_io_methods kMethods{1,           closeFile,  readFile,        writeFile,  truncateFile,
                                      syncFile,    fileSize,   lockFile,        unlockFile, checkLock,
                                      controlFile, sectorSize, characteristics, nullptr,    nullptr,
                                      nullptr,     nullptr,    nullptr,         nullptr};

int openFile(sqlite3_vfs* vfs, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags) {
    State& state = stateOf(vfs);
    File& opened = *new (file) File{{nullptr}, &state};
    if (const int refused = flags & SQLITE_OPEN_CREATE ? state.creation() : SQLITE_OK) return refused;
    const int code = state.below->xOpen(state.below, name, opened.below(), flags, outFlags);
    if (code == SQLITE_OK) opened.base.pMethods = &kMethods;
    return code;
}

int removeFile(sqlite3_vfs* vfs, const char* name, int syncFolder) {
    State& state = stateOf(vfs);
    const int code = state.change(SQLITE_IOERR_DELETE);
    return code != SQLITE_OK ? code : state.below->xDelete(state.below, name, syncFolder);
}

int accessFile(sqlite3_vfs* vfs, const char* name, int flags, int* result) {
    return stateOf(vfs).below->xAccess(stateOf(vfs).below, name, flags, result);
}

int fullPath(sqlite3_vfs* vfs, const char* name, int room, char* path) {
    return stateOf(vfs).below->xFullPathname(stateOf(vfs).below, name, room, path);
}

} // namespace

FaultVfs::FaultVfs() : state_(std::make_unique<State>()) {
    state_->below = sqlite3_vfs_find(nullptr);
    state_->vfs = *state_->below; // what is not replaced needs no state: time, randomness, waiting
    state_->vfs.zName = "fault";
    state_->vfs.pAppData = state_.get();
    state_->vfs.szOsFile = static_cast<int>(sizeof(File)) + state_->below->szOsFile;
    state_->vfs.xOpen = openFile;
    state_->vfs.xDelete = removeFile;
    state_->vfs.xAccess = accessFile;
    state_->vfs.xFullPathname = fullPath;
    sqlite3_vfs_register(&state_->vfs, 1);
}

FaultVfs::~FaultVfs() {
    sqlite3_vfs_unregister(&state_->vfs);
    sqlite3_vfs_register(state_->below, 1);
}

void FaultVfs::failAfter(int passing, Fault fault, int failures) {
    state_->passing = passing;
    state_->fault = fault;
    state_->failures = failures;
    state_->failed = false;
}

void FaultVfs::heal() { state_->failures = 0; }

bool FaultVfs::hasFailed() const { return state_->failed; }

} // namespace zv::test
