// What the tests use of POSIX and the cross compiler's library doesn't have. In the path of includes on
// Windows only. Other headers of the system include this one, so that it may include none of C++.
#pragma once

#include <direct.h>
#include <process.h>
#include <string.h>
#include_next <unistd.h>

// Makes a folder with a name that nothing has, and puts it into the place of the six X at the end of
// `pattern`.
inline char* mkdtemp(char* pattern) {
  static unsigned count = 0;
  char* const end = pattern + strlen(pattern);
  do {
    unsigned number = static_cast<unsigned>(_getpid()) * 1000 + count++;
    for (char* digit = end - 6; digit != end; ++digit, number /= 10)
      *digit = static_cast<char>('0' + number % 10);
  } while (_mkdir(pattern) != 0);
  return pattern;
}
