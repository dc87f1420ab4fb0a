#pragma once
// Marks the calling thread as running an update. An update holds the
// engine's lock exclusively from its start to its end and calls back into
// program code while it draws; the immediate-mode reads those callbacks make
// run under the update's lock instead of taking it again, which would
// deadlock.
namespace graphics {

class UpdateScope {
 public:
  // Call with the engine's lock held exclusively; scopes may nest.
  UpdateScope();
  ~UpdateScope();
  UpdateScope(const UpdateScope&) = delete;
  UpdateScope& operator=(const UpdateScope&) = delete;

  // Whether the calling thread is inside an update.
  static bool Active();
};

}  // namespace graphics
