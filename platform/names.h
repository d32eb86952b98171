// The names compiled into a program. Nothing changes them at run time: `ondrelle` links names.cpp,
// `ondrelle-demo` and the tests link names_demo.cpp, whose names are relative to the working
// directory.
#pragma once

// The control device of the adapter driver, one node for all adapters: seven characters and a
// terminator, in writable storage.
extern char devbase[8];

// The directory of the configuration file and its side files, without a trailing slash. A
// rewrite's temporary file stands beside this directory, so on the same file system.
extern const char atmDirectory[];
