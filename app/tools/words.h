#pragma once

#include <QString>
#include <exception>
#include <string_view>

/// The sentences of the core, which speaks English to commands, as the window tells them.
namespace kalco::app {

/// Why something failed, in small letters and without the path of the file: "sul disco non c'è più posto".
QString words_of(const std::exception& failure);

/// A sentence of the core in Italian: a mistake of a table, a refusal of a patch or an image. UTF-8; one that has no
/// translation is given back as it is.
QString italian(std::string_view sentence);

}  // namespace kalco::app
