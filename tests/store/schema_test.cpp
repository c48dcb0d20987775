// The tables of a new file against the list of fields that the catalogue has to have.
#include "store_fixture.h"
#include <QFile>

using namespace Qt::StringLiterals;

namespace zv::store::test {
namespace {

class Schema : public StoreTest {};

QStringList lines(const QString& file) {
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file.toStdString();
    return QString::fromUtf8(source.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QString kindWord(const Field& field) {
    switch (field.value) {
    case Value::Key: return u"key"_s;
    case Value::Number:
    case Value::Year: return u"number"_s;
    case Value::Text: return u"text"_s;
    case Value::Memo:
    case Value::Picture: break;
    }
    return u"memo"_s;
}

/// "Table.Column kind limit control" of each field; the keys that no screen reads are left out.
QStringList described(const QString& table, std::span<const Field> fields) {
    QStringList found;
    for (const Field& field : fields) {
        if (field.bound.isEmpty()) continue;
        QString line = table + u'.' + field.column.toString() + u' ' + kindWord(field);
        if (field.limit != 0) line += u' ' + QString::number(field.limit);
        found += line + u' ' + field.bound.toString();
    }
    return found;
}

/// A value that fits the field, different for each.
QString sample(const Field& field, int n) {
    if (field.value == Value::Number || field.value == Value::Year) return QString::number(n);
    return QStringLiteral("%1 %2").arg(n).arg(field.column).left(field.limit == 0 ? 100 : field.limit);
}

TEST_F(Schema, theDescriptionsHoldEveryFieldWithItsLimitAndItsBoundControl) {
    QStringList found;
    for (const int form : {1, 2}) {
        for (const KindInfo& kind : kinds())
            if (kind.form == form) found += described(kind.table.toString(), kind.fields);
        if (form == 1)
            for (const LinkInfo& link : links()) found += described(link.table.toString(), link.fields);
    }
    EXPECT_EQ(found.join(u'\n').toStdString(),
              lines(QStringLiteral(ZV_TEST_DATA "/schema.txt")).join(u'\n').toStdString());
}

TEST_F(Schema, aNewFileHasTheColumnsInTypesThatAnyToolUnderstands) {
    const QMap<QString, QString> types = {
        {u"key"_s, u"INTEGER"_s}, {u"number"_s, u"NUMERIC"_s}, {u"text"_s, u"TEXT"_s}, {u"memo"_s, u"TEXT"_s}};
    QMap<QString, QStringList> wanted;
    for (const QString& line : lines(QStringLiteral(ZV_TEST_DATA "/schema.txt"))) {
        const QStringList words = line.split(u' ');
        const QStringList name = words[0].split(u'.');
        // Records II have a key that no screen reads.
        const bool first = !wanted.contains(name[0]);
        if (first && words[1] != u"key"_s && !name[0].startsWith(u"Relacion"_s)) wanted[name[0]] += u"Id|INTEGER|1"_s;
        wanted[name[0]] += name[1] + u'|' + types[words[1]] + (words[1] == u"key"_s ? u"|1"_s : u"|0"_s);
    }
    ASSERT_EQ(wanted.size(), 17);
    for (const auto& [table, columns] : wanted.asKeyValueRange()) {
        QStringList found = rows(u"SELECT name, type, pk FROM pragma_table_info('%1')"_s.arg(table));
        EXPECT_EQ(found.join(u'\n').toStdString(), columns.join(u'\n').toStdString()) << table.toStdString();
        EXPECT_EQ(rows(u"SELECT count(*) FROM "_s + table), QStringList{u"0"_s});
    }
}

TEST_F(Schema, everyFieldIsReadBackThroughItsBoundControl) {
    load();
    for (const KindInfo& kind : kinds()) {
        Campos campos;
        QStringList wanted;
        int columns = 0;
        for (const Field& field : kind.fields) {
            wanted += field.value == Value::Key ? u"1"_s : sample(field, columns + 1);
            if (field.value != Value::Key) campos.set(columns++, field.column, wanted.last());
        }
        store.write(kind, columns, true, campos);
        ASSERT_FALSE(store.module1.ErrorBaseDatos) << kind.table.toString().toStdString() << store.module1.Err;
        QStringList found;
        for (int i = 0; i < static_cast<int>(kind.fields.size()); ++i) found += store.bound(kind.kind, i);
        EXPECT_EQ(found, wanted) << kind.table.toString().toStdString();
    }
    for (const LinkInfo& link : links()) {
        Campos campos;
        campos.set(0, link.fields[0].column, u"1"_s);
        campos.set(1, link.fields[1].column, u"-1"_s);
        store.Data(1, link.channel).Refresh();
        store.GrabarRegistro(link.channel, 2, true, campos);
        EXPECT_EQ(store.Data(1, link.channel).boundText(link.fields[0].column.toString()), u"1"_s);
        EXPECT_EQ(store.Data(1, link.channel).boundText(link.fields[1].column.toString()), u"-1"_s);
    }
}

TEST_F(Schema, keysRiseAndAreNotGivenTwice) {
    sql(u"INSERT INTO Compositor(Apellidos) VALUES('one'), ('two')"_s);
    sql(u"DELETE FROM Compositor WHERE Id = 2"_s);
    load();
    Campos campos;
    campos.set(0, u"Apellidos", u"three"_s);
    store.GrabarRegistro(0, 1, true, campos);
    EXPECT_EQ(rows(u"SELECT Id, Apellidos FROM Compositor"_s), (QStringList{u"1|one"_s, u"3|three"_s}));
}

TEST_F(Schema, tabsAndChannelsAreInTheirOwnOrders) {
    QStringList byTab;
    for (const int form : {1, 2})
        for (int tab = 0; tab < 7; ++tab)
            byTab += kindOfTab(form, tab).table.toString() + u' ' + QString::number(kindOfTab(form, tab).channel) +
                     u' ' + QString::number(kindOfTab(form, tab).fieldCount);
    EXPECT_EQ(byTab.join(u'\n').toStdString(),
              "Compositor 0 6\nObra 1 16\nOrquesta 3 5\nDirector 2 6\nInterprete 5 7\n"
              "Soporte 4 11\nGrabacion 6 39\nInstrumento 0 7\nAgrupacion 1 7\n"
              "Evento 2 7\nEscenario 3 7\nPublicacion 4 10\nEmisora 5 8\nInternet 6 7");
}

} // namespace
} // namespace zv::store::test
