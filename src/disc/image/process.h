#pragma once

namespace kalco {

/// What a program that works on images does first of all, before any file is opened.
///
/// A standard descriptor that is closed is opened on the null device, against its direction: an image can't become
/// standard output, and what is read from or written to it fails as on a closed one. A write over the limit of a
/// file's size is an error of that write, no signal.
void guard_process();

}  // namespace kalco
