#pragma once
// The shared frame of every exported function: take the engine lock, run the
// body with this thread's session, release the lock, then report the body's
// error, if any, with the function's name as the routine. Reporting after
// the release lets handlers call back into the engine.
#include <mutex>
#include <new>
#include <optional>
#include <shared_mutex>
#include <utility>

#include "engine/engine.h"
#include "engine/update_scope.h"
#include "errors/error.h"
#include "session/session.h"

namespace graphics::api {

enum class Access { kRead, kWrite };

void Report(const Error& error, const char* routine);

// Runs `work(Session&)`, which returns an optional Error, under the lock.
template <typename Work>
std::optional<Error> Locked(Access access, Work&& work) {
  try {
    Engine& engine = Engine::Instance();
    if (access == Access::kRead) {
      std::shared_lock lock(engine.mutex());
      Session session(engine.database(), engine.ThisThreadStack());
      return work(session);
    }
    std::unique_lock lock(engine.mutex());
    Session session(engine.database(), engine.ThisThreadStack());
    return work(session);
  } catch (const std::bad_alloc&) {
    return Error(errc::kOutOfMemory, "out of memory", kFatal);
  }
}

// For a function with a result: `body(Session&)` returns Result<T>; on
// failure the function returns `on_failure`.
template <typename T, typename Body>
T Run(Access access, const char* routine, T on_failure, Body&& body) {
  T value = std::move(on_failure);
  const std::optional<Error> failure = Locked(access, [&](Session& session) -> std::optional<Error> {
    Result<T> result = body(session);
    if (!result.ok()) return result.error();
    value = std::move(result.value());
    return std::nullopt;
  });
  if (failure) Report(*failure, routine);
  return value;
}

// For a function without a result: `body(Session&)` returns Status.
template <typename Body>
void Run(Access access, const char* routine, Body&& body) {
  Run<Done>(access, routine, Done{}, std::forward<Body>(body));
}

// As Run, for the immediate-mode reads an update's callbacks make: inside
// an update, which holds the lock exclusively already, the body runs under
// that lock instead of taking it again, and its error is reported at once.
template <typename T, typename Body>
T RunDuringUpdate(Access access, const char* routine, T on_failure, Body&& body) {
  if (!UpdateScope::Active()) return Run(access, routine, std::move(on_failure), std::forward<Body>(body));
  std::optional<Error> failure;
  try {
    Engine& engine = Engine::Instance();
    Session session(engine.database(), engine.ThisThreadStack());
    Result<T> result = body(session);
    if (result.ok()) return std::move(result.value());
    failure = result.error();
  } catch (const std::bad_alloc&) {
    failure = Error(errc::kOutOfMemory, "out of memory", kFatal);
  }
  Report(*failure, routine);
  return on_failure;
}

// Reports `status`'s error, if any, for a function that needs no lock.
void ReportIfFailed(const Status& status, const char* routine);

}  // namespace graphics::api
