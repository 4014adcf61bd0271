#include <QCoreApplication>

#include <gmock/gmock.h>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    const int status = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() > 0)
        return status;
    std::puts("The filter matches no test.");
    return 1;
}
