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

} // namespace
} // namespace zv::store::test
