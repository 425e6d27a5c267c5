// ModuleServices.h - the operating system's module services under their Windows names, on every system.
#pragma once

#include <string>

#ifdef _WIN32

#include <windows.h>

#else

using HMODULE = void*;
using HINSTANCE = HMODULE;
using FARPROC = void (*)();
using UINT = unsigned int;
using DWORD = unsigned int;
using BOOL = int;
using LPSTR = char*;
using LPCSTR = const char*;

// Handle of a module that is loaded already, found by its file name without regard to case; null when none
// is. The load count stays as it is. A name that ends in ".EXE" also stands for the running program, with or
// without that ending. A null name gives the running program.
HMODULE GetModuleHandleA(LPCSTR name);

// Puts the full file name under which the module was loaded, or the program started, into `buffer` of `size`
// characters, terminated, cut to fit; returns the number of characters written without the terminator (`size`
// when the name was cut), 0 when the module is not known.
DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);

// Address of the module's export `name`; null when there is none, and for a null module or name.
FARPROC GetProcAddress(HMODULE module, LPCSTR name);

// Lowers the module's load count by one; 0 on failure, which a null module is.
BOOL FreeLibrary(HMODULE module);

// Puts string `id` of the module's string table into `buffer` of `size`
// characters, terminated, cut to fit; returns the number of characters without
// the terminator. 0, and `buffer` empty, when there is no such string.
int LoadStringA(HINSTANCE module, UINT id, LPSTR buffer, int size);

#endif

// Loads a module: the named file when `name` holds a path, else by the
// loader's ordinary search. Raises the load count of a module that is loaded
// already. Null on failure, which a null or empty name is; the caller releases
// the result with FreeLibrary.
HMODULE AfxLoadLibrary(LPCSTR name);

// Why the last AfxLoadLibrary failed, in the system's words, UTF-8.
std::string ModuleLoadError();

// The module's export `name` as the function that it is; null when there is none.
template <typename Function>
Function ExportedFunction(HMODULE module, LPCSTR name) {
  return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(module, name)));
}
