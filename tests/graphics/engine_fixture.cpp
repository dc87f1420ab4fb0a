#include "engine_fixture.h"

#include <mutex>

#include "attributes/modelling_matrix.h"
#include "attributes/user_options.h"
#include "database/database.h"
#include "engine/engine.h"

namespace engine_test {

namespace {

std::mutex reports_mutex;
std::vector<Report> reports;

void CaptureReport(int category, int specific, int severity, int msgc, char const* const* msgv, int stackc,
                   char const* const* stackv) {
  std::lock_guard lock(reports_mutex);
  reports.push_back(Report{category, specific, severity, msgc > 0 ? msgv[0] : "", stackc > 0 ? stackv[0] : ""});
}

void Describe(const graphics::Segment& segment, bool with_keys, std::string& out) {
  out += graphics::Database::FullPath(segment);
  if (with_keys) out += " key=" + std::to_string(segment.key());
  if (const auto* options = segment.attributes().Find<graphics::UserOptions>()) {
    out += " options=" + options->Format();
  }
  if (const auto* matrix = segment.attributes().Find<graphics::ModellingMatrix>()) {
    out += " matrix=";
    for (double e : matrix->matrix.elements()) out += std::to_string(e) + ' ';
  }
  out += '\n';
  for (const graphics::Geometry& item : segment.geometry()) {
    out += "  " + std::string(item.TypeWord());
    if (with_keys) out += " key=" + std::to_string(item.key());
    out += '\n';
  }
  for (const graphics::Segment& child : segment.children()) Describe(child, with_keys, out);
}

}  // namespace

std::vector<Report> TakeReports() {
  std::lock_guard lock(reports_mutex);
  std::vector<Report> taken;
  taken.swap(reports);
  return taken;
}

std::string TreeSnapshot() {
  std::string out;
  Describe(graphics::Engine::Instance().database().root(), true, out);
  return out;
}

std::string TreeShape() {
  std::string out;
  Describe(graphics::Engine::Instance().database().root(), false, out);
  return out;
}

void EngineTest::SetUp() {
  HC_Reset_System();
  HC_Define_Error_Handler(CaptureReport);
  HC_UnDefine_Error_Handler(HC_Report_Error);
  TakeReports();
}

void EngineTest::TearDown() {
  HC_Reset_System();
  HC_Define_Error_Handler(HC_Report_Error);
  HC_UnDefine_Error_Handler(CaptureReport);
  TakeReports();
}

}  // namespace engine_test
