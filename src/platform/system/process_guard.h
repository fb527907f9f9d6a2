// What the process sets up for itself before anything else runs in it.
#pragma once

namespace tarvis {

// Opens what the caller has closed of the three standard streams as the null device, so that no file or
// connection of the program takes their numbers and gets its diagnoses. Makes a write that fails return an
// error where the system would end the process: to standard error that isn't read any more, or to a file at
// its size limit. Keeps the memory, which holds what is printed, from being dumped if the process breaks.
// Takes UTF-8 as the encoding of the environment, which the toolkit needs.
void GuardProcess();

// Has all threads take their memory from one pool. A pool for each would keep what only one of them needs. To
// be called before there are threads.
void UseOneMemoryPool();

}  // namespace tarvis
