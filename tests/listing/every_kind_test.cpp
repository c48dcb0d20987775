// All fields of every kind in the grid and on paper: their order, their words, and the years that are missing.
#include "listing/list_desk.h"
#include "support/kind_words.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class ListWords : public test::ListDesk, public ::testing::WithParamInterface<test::KindWords> {
  protected:
    ListWords() : ListDesk(test::memberOf(GetParam().kind)) {}
};

INSTANTIATE_TEST_SUITE_P(Kinds, ListWords, ::testing::ValuesIn(test::PlainKinds), test::kindName);

TEST_P(ListWords, AllFieldsAreListedAndPrinted) {
    // A record of full fields, one of zeros and empty texts, one of nothing.
    QStringList columns, full, none, nothing, captions, cells, blanks, paper, dashes;
    for (const auto& row : GetParam().rows()) {
        const QString value = QString::number(11 + captions.size());
        captions += row.caption;
        columns += row.column;
        full += u'\'' + value + u'\'';
        none += row.numeric ? u"0"_s : u"''"_s;
        nothing += u"NULL"_s;
        cells += value;
        blanks += QString();
        paper += u"  "_s + value + u"  /"_s;
        dashes += u"  -  /"_s;
    }
    put({m.table(), columns.join(u','), {full.join(u','), none.join(u','), nothing.join(u',')}});
    start();
    open();
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    const QString empty = blanks.join(u'|') + u'\n';
    EXPECT_EQ(hands->page(),
              u"No.|"_s + captions.join(u'|') + u"\n1|"_s + cells.join(u'|') + u"\n2|"_s + empty + u"3|"_s + empty);
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), QString::number(captions.size() + 1));

    hands->click(u"BtnImprimir"_s);
    const QStringList lines = printers.printer.operations();
    EXPECT_TRUE(lines.filter(u"''"_s + GetParam().title.toString() + u"''"_s).size() == 1);
    EXPECT_TRUE(lines.filter(u"'1- /"_s + paper.join(QString()) + u'\'').size() == 1)
        << lines.join(u'\n').toStdString();
    EXPECT_TRUE(lines.filter(u"'2- /"_s + dashes.join(QString()) + u'\'').size() == 1);
    EXPECT_TRUE(lines.filter(u"'3- /"_s + dashes.join(QString()) + u'\'').size() == 1);
}

} // namespace
