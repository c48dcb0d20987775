// The lists of every Select screen, and what each of their rows puts into the statement.
#include "selection/select_desk.h"
#include "support/kind_words.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class SelectWords : public test::SelectDesk, public ::testing::WithParamInterface<test::KindWords> {
  protected:
    SelectWords() : SelectDesk(test::memberOf(GetParam().kind)) {}
    QStringList captions(const QString& combo) {
        auto& list = hands->get<forms::Combo>(combo);
        QStringList found;
        for (int i = 0; i < list.ListCount(); ++i) found += list.List(i);
        return found;
    }
    const QString All = u"SELECT * FROM "_s + GetParam().info().table.toString();
};

INSTANTIATE_TEST_SUITE_P(Kinds, SelectWords, ::testing::ValuesIn(test::PlainKinds), test::kindName);

TEST_P(SelectWords, EachFieldIsOfferedFilteredAndOrderedBy) {
    start();
    open();
    EXPECT_EQ(hands->text(u"LabBaseDatos"_s), GetParam().title.toString());
    const QString placeholder = u"              FIELD"_s;
    QStringList filters, orders;
    for (const auto& row : GetParam().rows()) {
        filters += row.caption;
        if (row.caption != u"Notes") orders += row.caption;
    }
    EXPECT_EQ(captions(u"ComboCampo"_s), filters + QStringList{placeholder});
    EXPECT_EQ(captions(u"ComboCampoOrden"_s), orders + QStringList{placeholder});
    for (const auto& row : GetParam().rows()) {
        selectOne(row.caption, u"Smaller than"_s, u"XVIII"_s);
        if (orders.contains(row.caption)) order(row.caption, u"Descending"_s);
        accept();
        const QString where = All + u" WHERE "_s + row.column + (row.numeric ? u" < -1"_s : u" < 'XVIII'"_s);
        EXPECT_TRUE(statement() == where + u" ORDER BY "_s + row.column + u" DESC"_s ||
                    (row.caption == u"Notes" && statement().startsWith(where)))
            << statement().toStdString();
        EXPECT_EQ(selection().Lista, row.caption + u"#Smaller than#'XVIII'#"_s) << "the list tells the word typed";
        EXPECT_EQ(selection().ValorFiltro, row.caption + u" Smaller than 'XVIII'"_s);
    }
    hands->click(u"BtnNueva"_s);
    hands->paste(u"TxtValFiltro"_s, QString(200, u'9'));
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s).size(), GetParam().valueLimit);
}

} // namespace
