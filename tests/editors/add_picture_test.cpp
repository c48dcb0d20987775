// The picture of a record on the Add screens.
#include "editors/editor_member.h"
#include "support/file_bytes.h"

#include <QBuffer>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

// The square is 3000 twips at 240, 240; the button stands 390 above the picture's lower edge, the name 25 below it.
const QString Nothing = u"Imagen 240 240 3000 3000, LabNombre 3265, Remove hidden, name unseen"_s;
const QString Wide = u"Imagen 240 990 3000 1500, LabNombre 2515, Remove 2100, name black"_s;
const QString Tall = u"Imagen 990 240 1500 3000, LabNombre 3265, Remove 2850, name black"_s;

class AddPicture : public EditorMember {
  protected:
    void SetUp() override {
        start();
        hands->go(addNumber);
    }
    /// Picks a file, "" for a cancel, and gives what the screen shows then.
    QString pick(const QString& path) {
        files.choose(path);
        hands->doubleClick(u"Imagen"_s);
        return pictureState();
    }
    QString& path() { return memory().Memo.back(); }
    QString made(const QString& name, const QByteArray& bytes) {
        write(folder_.filePath(name), bytes);
        return folder_.filePath(name);
    }
    /// What an accepted record has as its picture.
    QString savedPath() {
        identify(u"one"_s);
        save();
        return column(kind.fields.back()).last();
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, AddPicture, EditorMembers, memberName);

/// A whole header of a picture of that side in 24 bits, and next to nothing behind it.
QByteArray hugeBmp(int side) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("BM", 2);
    out << quint32(1000) << quint32(0) << quint32(54) << quint32(40) << qint32(side) << qint32(side) << quint16(1)
        << quint16(24) << quint32(0) << quint32(0) << quint32(2835) << quint32(2835) << quint32(0) << quint32(0);
    return bytes + QByteArray(946, '\x7f');
}

/// A small picture whose header claims that side.
QByteArray hugeJpeg(int side) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage(16, 16, QImage::Format_RGB32).save(&buffer, "jpeg");
    const auto frame = bytes.indexOf("\xff\xc0");
    EXPECT_GT(frame, 0);
    for (const qsizetype at : {frame + 5, frame + 7}) {
        bytes[at] = static_cast<char>(side >> 8);
        bytes[at + 1] = static_cast<char>(side);
    }
    return bytes;
}

long peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

TEST_P(AddPicture, aPictureIsFittedIntoItsSquare) {
    EXPECT_EQ(pictureState(), Nothing);
    EXPECT_EQ(pick(u""_s), Nothing);
    EXPECT_EQ(files.shown,
              (QStringList{u"Insert Image"_s, u"Images (*.jpg, *.gif, *.bmp)|*.jpg;*.gif;*.bmp|All files (*.*)|*.*"_s,
                           u""_s}));
    EXPECT_EQ(pick(picture(u"wide, ñ #1.jpg"_s, {400, 200}, "jpeg")), Wide);
    EXPECT_EQ(path(), folder_.filePath(u"wide, ñ #1.jpg"_s));
    EXPECT_EQ(pick(u""_s), Wide) << "A cancel keeps the picture.";
    EXPECT_EQ(files.shown.last(), path()) << "The dialog opens on the file in use.";
    const QString tall = picture(u"tall.bmp"_s, {200, 400});
    EXPECT_EQ(pick(tall), Tall);
    hands->go(57);
    hands->go(addNumber);
    EXPECT_EQ(pictureState(), Tall);
    hands->click(u"BtnImagenEliminar"_s);
    EXPECT_EQ(pictureState(), Nothing);
    EXPECT_EQ(path(), u"");
    EXPECT_EQ(savedPath(), u"");
    pick(tall);
    EXPECT_EQ(savedPath(), tall);
    EXPECT_EQ(pictureState(), Nothing) << "The screen is ready for the next record.";
}

TEST_P(AddPicture, whatCannotBeShownLeavesNoPicture) {
    const QString whole = picture(u"whole.jpg"_s, {400, 200}, "jpeg");
    for (const QString& bad :
         {folder_.filePath(u"no folder/missing.jpg"_s), made(u"text.jpg"_s, "This is no picture.")}) {
        SCOPED_TRACE(bad.toStdString());
        EXPECT_EQ(pick(whole), Wide);
        EXPECT_EQ(pick(bad), Nothing);
        EXPECT_EQ(path(), u"");
    }
    EXPECT_EQ(savedPath(), u"");
}

TEST_P(AddPicture, aPictureThatClaimsToBeHugeTakesLittleMemory) {
    const long before = peakMegabytes();
    EXPECT_EQ(pick(made(u"huge.bmp"_s, hugeBmp(30000))), Nothing);
    pick(made(u"huge.jpg"_s, hugeJpeg(30000)));
    EXPECT_LT(peakMegabytes() - before, 200);
}

TEST_P(AddPicture, aFileThatVanishedIsRememberedButSavedAsNone) {
    const QString file = picture(u"wide.bmp"_s, {400, 200});
    EXPECT_EQ(pick(file), Wide);
    hands->go(57);
    ASSERT_TRUE(QFile::rename(file, file + u".away"_s));
    hands->go(addNumber);
    EXPECT_EQ(pictureState(), Nothing);
    EXPECT_EQ(path(), file);
    // The file is back: so is the picture.
    ASSERT_TRUE(QFile::rename(file + u".away"_s, file));
    hands->go(57);
    hands->go(addNumber);
    EXPECT_EQ(pictureState(), Wide);
    ASSERT_TRUE(QFile::remove(file));
    hands->go(57);
    hands->go(addNumber);
    EXPECT_EQ(savedPath(), u"");
    EXPECT_EQ(path(), u"");
}

} // namespace
} // namespace zv::test
