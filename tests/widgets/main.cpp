#include "platform/foundation/UserDefaults.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    UserDefaults::standardUserDefaults().setFile(folder.filePath("defaults.ini"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
