#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    return RUN_ALL_TESTS();
}
