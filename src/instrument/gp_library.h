// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vexa {

/// The calls of the GP-IB interface library `U2GPLIB`, named as the library exports them. Each
/// blocks until it is done and returns 0, or the number of an error. Addresses are those of the
/// bus, 0..30; times are in seconds.
struct GpLibrary {
  int (*gp_init)(int ownAddress) = nullptr;
  /// Ends a "t" (talker's) or "l" (listener's) text with this delimiter.
  int (*gp_delm)(const char* direction, int delimiter) = nullptr;
  int (*gp_tmout)(int seconds) = nullptr;
  int (*gp_cli)() = nullptr;             ///< interface clear
  int (*gp_ren)() = nullptr;             ///< remote enable
  int (*gp_clr)(int address) = nullptr;  ///< device clear
  int (*gp_trg)(int address) = nullptr;  ///< device trigger
  /// Waits for a service request; a negative number when none came in the time.
  int (*gp_wsrq)(int seconds) = nullptr;
  int (*gp_rds)(int address, int* statusByte) = nullptr;
  int (*gp_wrt)(int address, const char* text) = nullptr;
  /// Takes up to `length` binary bytes and tells how many came.
  int (*gp_tfrin)(int address, int length, unsigned char* bytes, int* received) = nullptr;
};

/// Why a library could not be bound.
struct GpBindingFault {
  QString missing;      ///< "U2GPLIB" or the name of a call
  QString reason = {};  ///< more about it in words, where there is more to say
};

/// Binds the library by its name, from this directory or else from the system's path, and its
/// calls by theirs; it then stays loaded to the end of the program. What lies in the directory runs
/// with the user's rights: it is refused when others may write or replace it. Nothing when all is
/// bound.
[[nodiscard]] std::optional<GpBindingFault> BindGpLibrary(const QString& directory,
                                                          GpLibrary& library);

}  // namespace vexa
