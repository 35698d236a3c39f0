#include <gtest/gtest.h>

#include <QStringList>

TEST(QtPrinting, AFailureShowsTextAndNotBytes) {
    EXPECT_EQ(testing::PrintToString(QString("Ṱhoho")), "\"Ṱhoho\"");
    EXPECT_EQ(testing::PrintToString(QStringList{"a", "ḽ"}), "{\"a\", \"ḽ\"}");
    EXPECT_EQ(testing::PrintToString(std::optional(QByteArray("1,5"))), "(\"1,5\")");
}
