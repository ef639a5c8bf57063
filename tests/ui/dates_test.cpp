#include "ui/dates.h"

#include <gtest/gtest.h>

using namespace agenda::ui;

TEST(Dates, JoursDepuisLOrigineAvecLHeureEnFraction) {
    EXPECT_DOUBLE_EQ(date_de(QDate(1899, 12, 30)), 0);
    EXPECT_DOUBLE_EQ(date_de(QDate(2004, 3, 3)), 38049);
    EXPECT_DOUBLE_EQ(date_de(QDateTime(QDate(2004, 3, 3), QTime(18, 0))), 38049.75);
    EXPECT_EQ(jour_de(38049.75), QDate(2004, 3, 3));
    EXPECT_EQ(jour_semaine(date_de(QDate(2004, 3, 7))), 1); // Sunday
    EXPECT_EQ(jour_semaine(date_de(QDate(2004, 3, 6))), 7); // Saturday
}

TEST(Dates, MotifsEnFrancais) {
    const Date d = date_de(QDate(2004, 3, 3));
    struct Cas {
        const char16_t* motif;
        const char* attendu;
    };
    for (const Cas c : {Cas{u"yymmdd", "040303"},
                        {u"dd/mm/yyyy", "03/03/2004"},
                        {u"dddd dd mmmm yyyy", "mercredi 03 mars 2004"},
                        {u"ddmm", "0303"},
                        {u"d", "3"},
                        {u"mmmm", "mars"}})
        EXPECT_EQ(format_date(d, c.motif), QString::fromUtf8(c.attendu));
    EXPECT_EQ(format_date(date_de(QDate(2026, 8, 15)), u"dddd dd mmmm"),
              QStringLiteral("samedi 15 août"));
    EXPECT_EQ(format_date(date_de(QDate(2026, 2, 1)), u"mmmm"), QStringLiteral("février"));
}
