/// window_tests FILE [OPTION...]: runs the tests of a file of this folder, test_binder say, with QtTest's options.
#include <cstdio>
#include <filesystem>
#include <utility>

#include "app/support/test_list.h"

namespace kalco::test {

std::map<std::string, WindowTest>& window_tests() {
    static std::map<std::string, WindowTest> tests;
    return tests;
}

bool list_window_test(const char* file, WindowTest test) {
    window_tests().emplace(std::filesystem::path(file).stem().string(), std::move(test));
    return true;
}

}  // namespace kalco::test

int main(int argc, char** argv) {
    const auto& tests = kalco::test::window_tests();
    const auto chosen = argc > 1 ? tests.find(argv[1]) : tests.end();
    if (chosen == tests.end()) {
        std::fputs("Usage: window_tests FILE [OPTION...], where FILE is one of\n", stderr);
        for (const auto& [name, run] : tests) std::fprintf(stderr, "    %s\n", name.c_str());
        return 2;
    }
    // Qt sees the program's own name and what follows the file's.
    argv[1] = argv[0];
    return chosen->second(argc - 1, argv + 1);
}
