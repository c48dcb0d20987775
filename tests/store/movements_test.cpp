// The movements of a work as they are stored, and times as they are told.
#include "store/movements.h"
#include "support/readable.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace zv::store {
namespace {

TEST(Movements, theListsAreReadToTheirLastSeparator) {
    EXPECT_EQ(movementNames(u"Allegro# Andante #"_s), (std::vector{u"Allegro"_s, u" Andante "_s}));
    EXPECT_EQ(movementNames(u"a##b"_s), (std::vector{u"a"_s, QString()})) << "what is not ended is no movement";
    EXPECT_EQ(movementSeconds(u" 90# 125# 3661#"_s), (std::vector<double>{90, 125, 3661}));
    EXPECT_EQ(movementSeconds(u"#7# 1"_s), (std::vector<double>{0, 7}));
    // Sign and point count as the digit 0.
    EXPECT_EQ(movementSeconds(u"-5# 1.5#"_s), (std::vector<double>{5, 105}));
    for (const QString& none : {QString(), u"#"_s, u"#a#"_s}) EXPECT_FALSE(hasMovements(none)) << none.toStdString();
    EXPECT_TRUE(hasMovements(u"a#"_s));
}

} // namespace
} // namespace zv::store
