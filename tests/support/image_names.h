#pragma once

/// The names of the tests' image and of what a save of it leaves beside it when it is cut off.
namespace kalco::test {

inline constexpr auto image_name = "disc.bin";
inline constexpr auto journal_name = "disc.bin.kalco-journal";

}  // namespace kalco::test
