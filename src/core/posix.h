// Where the system's own file calls are there: OMBRELIA_POSIX.
#pragma once

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#define OMBRELIA_POSIX 1
#endif
