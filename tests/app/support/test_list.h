#pragma once

#include <QtTest>
#include <functional>
#include <map>
#include <string>

namespace kalco::test {

/// Runs tests with QtTest's options.
using WindowTest = std::function<int(int argc, char** argv)>;

/// What window_tests can run, by the names of the files without their endings.
std::map<std::string, WindowTest>& window_tests();

/// True, so that it can be called before main.
bool list_window_test(const char* file, WindowTest test);

/// The application as QTEST_MAIN sets it up.
class TestApplication : public QApplication {
public:
    TestApplication(int& argc, char** argv) : QApplication(argc, argv) { setAttribute(Qt::AA_Use96Dpi, true); }
};

template <typename Tests, typename Application = TestApplication>
int run_window_test(int argc, char** argv) {
    const Application application(argc, argv);
    Tests tests;
    return QTest::qExec(&tests, argc, argv);
}

}  // namespace kalco::test

/// At the end of a file of window tests. A second class is that of the application, TestApplication without one.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): only a macro knows the file.
#define KALCO_WINDOW_TEST(Tests, ...)                                                                                  \
    static const bool listed_##Tests =                                                                                 \
        kalco::test::list_window_test(__FILE__, kalco::test::run_window_test<Tests __VA_OPT__(, ) __VA_ARGS__>);
