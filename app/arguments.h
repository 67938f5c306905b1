#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace kalco::app {

/// What the command line asks for.
struct Arguments {
    enum class Wish { window, help, version, refused };

    Wish wish = Wish::window;
    QString image;    ///< Absolute; empty when none was named.
    QString refusal;  ///< Why the line can't be followed.
};

/// `words` are those behind the program's name.
Arguments read_arguments(const QStringList& words);

/// Prints what was asked for; none when the window is wanted. Needs no display.
std::optional<int> answer_arguments(const Arguments& arguments);

}  // namespace kalco::app
