// What the GNU run-time library (exceptions, std::mutex, guards of static objects) needs of POSIX threads,
// made of Windows' own primitives, and the end of that library when the module is unloaded. Linked into the
// module alone.
//
// The tool chain's own library for it gives two handles and some memory to each thread on which an exception
// passes or a lock is initialised, and takes a slot of thread-local storage: none of them comes back when the
// module is unloaded while the thread lives on. It also installs an exception handler for the whole process
// of the host.
#pragma once

namespace entry
{

// Frees what the run-time library keeps for all threads. Called last when the module is unloaded while the
// process lives on; no exception may be thrown afterwards. Does nothing in builds with another run-time
// library.
void FreeGnuRuntime() noexcept;

} // namespace entry
