#include <QCoreApplication>

#include <gmock/gmock.h>

// Tests of what needs an event loop, but no window.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
