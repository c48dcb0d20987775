// The companion tool: what is done to a catalogue from outside the program.
#include "convert.h"
#include "platform/jet/engine.h"
#include "store/channels.h"
#include <CLI/CLI.hpp>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

using namespace zv;

namespace {

/// Whether files can be made in a folder; says so if not.
bool canMakeFilesIn(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.isDir())
        std::fprintf(stderr, "%s is no folder.\n", qPrintable(folder));
    else if (!info.isWritable())
        std::fprintf(stderr, "%s may not be written to.\n", qPrintable(folder));
    return info.isDir() && info.isWritable();
}

/// Makes an empty catalogue. Returns the status of the process.
int makeCatalogue(const QString& file) {
    try {
        jet::DBEngine(store::tableDefs()).CreateDatabase(file);
    } catch (const RuntimeError& error) {
        if (error.number() == 3204)
            std::fprintf(stderr, "%s is there already; it was left as it is.\n", qPrintable(file));
        else
            std::fprintf(stderr, "%s could not be made: error %d, %s\n", qPrintable(file), error.number(),
                         qPrintable(error.text()));
        return 1;
    }
    std::printf("%s\n", qPrintable(file));
    return 0;
}

/// Reads the command line and does what it says. Returns the status of the process.
int run(int argc, char** argv) {
    CLI::App tool("Makes catalogues for Zarvelia.", "zarvelia-tool");
    tool.set_version_flag("--version", ZV_VERSION);
    tool.require_subcommand(1);
    std::string folder, old;
    CLI::App* make = tool.add_subcommand("new", "Makes an empty catalogue, DataZV.mdb, in a folder.");
    make->add_option("FOLDER", folder, "The folder, which must exist and hold no catalogue.")->required();
    CLI::App* convert =
        tool.add_subcommand("convert", "Makes a catalogue, DataZV.mdb, in a folder from an old one, a Jet "
                                       "database, which is only read.");
    convert->add_option("OLD.mdb", old, "The old catalogue.")->required();
    convert->add_option("FOLDER", folder, "The folder, which must exist and hold no catalogue.")->required();
    CLI11_PARSE(tool, argc, argv);
    const QString target = QString::fromLocal8Bit(folder.c_str());
    if (!canMakeFilesIn(target)) return 1;
    const QString file = QDir(target).filePath(store::DatabaseFile);
    return convert->parsed() ? tool::convertCatalogue(QString::fromLocal8Bit(old.c_str()), file) : makeCatalogue(file);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
