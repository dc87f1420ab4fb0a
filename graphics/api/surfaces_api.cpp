// Shells (by face list or by triangle strips) and meshes.
#include <algorithm>
#include <memory>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "geometry/mesh.h"
#include "geometry/shell.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Mesh;
using graphics::Point;
using graphics::Result;
using graphics::Session;
using graphics::Shell;
using graphics::Status;
using graphics::Surface;
using graphics::api::Access;
using graphics::api::CheckRange;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::ReadPoints;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WritePoints;
namespace errc = graphics::errc;

namespace {

Result<std::vector<int>> ReadInts(const int* values, int count, const char* what) {
  if (count < 0) return Error(errc::kOutOfRange, std::string("negative length of ") + what);
  if (count > 0 && values == nullptr) return Error(errc::kNullArgument, std::string("null ") + what);
  return std::vector<int>(values, values + count);
}

Result<Shell*> FindShell(Session& session, long long key) {
  return FindGeometryAs<Shell>(session, key, {GeometryType::kShell}, "shell");
}

void WriteInts(int* out, const std::vector<int>& values) {
  if (out != nullptr) std::copy(values.begin(), values.end(), out);
}

// Appends the entries of faces [first, first + count) of a face list, holes
// going with their face.
void FaceRange(const std::vector<int>& list, int first, int count, std::vector<int>& out) {
  int face = -1;
  for (size_t at = 0; at < list.size();) {
    const int n = list[at];
    if (n > 0) ++face;
    const size_t length = static_cast<size_t>(n < 0 ? -n : n);
    if (face >= first && face < first + count) out.insert(out.end(), list.begin() + static_cast<std::ptrdiff_t>(at),
                                                          list.begin() + static_cast<std::ptrdiff_t>(at + 1 + length));
    at += 1 + length;
  }
}

}  // namespace

extern "C" long long HC_Insert_Shell(int pcount, void const* points, int flist_length, int const* face_list) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto read = ReadPoints(points, pcount, "shell points");
    if (!read.ok()) return read.error();
    auto faces = ReadInts(face_list, flist_length, "face list");
    if (!faces.ok()) return faces.error();
    auto checked = Shell::CheckFaceList(read.value().size(), faces.value());
    if (!checked.ok()) return checked.error();
    return InsertIntoCurrent(session, std::make_unique<Shell>(
                                          Shell::FromFaceList(std::move(read.value()), std::move(faces.value()))));
  });
}

// Null face identifiers make each triangle a face of its own.
extern "C" long long HC_Insert_Shell_By_Tristrips(int pcount, void const* points, int tristrips_length,
                                                  int const* tristrips, int face_indices_length,
                                                  int const* face_indices) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto read = ReadPoints(points, pcount, "shell points");
    if (!read.ok()) return read.error();
    auto strips = ReadInts(tristrips, tristrips_length, "triangle strips");
    if (!strips.ok()) return strips.error();
    auto triangles = Shell::CheckTristrips(read.value().size(), strips.value());
    if (!triangles.ok()) return triangles.error();
    auto ids = ReadInts(face_indices, face_indices ? face_indices_length : 0, "face indices");
    if (!ids.ok()) return ids.error();
    if (!ids.value().empty() && ids.value().size() != triangles.value()) {
      return Error(errc::kOutOfRange, "there must be one face index per triangle, " +
                                          std::to_string(triangles.value()) + " in all");
    }
    return InsertIntoCurrent(session, std::make_unique<Shell>(Shell::FromTristrips(
                                          std::move(read.value()), std::move(strips.value()), std::move(ids.value()))));
  });
}

extern "C" void HC_Show_Shell_Size(long long key, int* pcount, int* flist_length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    Write(pcount, static_cast<int>(found.value()->points().size()));
    if (flist_length != nullptr) *flist_length = static_cast<int>(found.value()->FaceList().size());
    return Done{};
  });
}

extern "C" void HC_Show_Shell(long long key, int* pcount, void* points, int* flist_length, int* face_list) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    const Shell& shell = *found.value();
    Write(pcount, static_cast<int>(shell.points().size()));
    WritePoints(points, shell.points());
    if (flist_length != nullptr || face_list != nullptr) {
      const std::vector<int> list = shell.FaceList();
      Write(flist_length, static_cast<int>(list.size()));
      WriteInts(face_list, list);
    }
    return Done{};
  });
}

extern "C" void HC_Show_Partial_Shell(long long key, int voffset, int vcount, void* points, int foffset, int fcount,
                                      int* flist_length, int* face_list) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    const Shell& shell = *found.value();
    auto vertices = CheckRange(voffset, vcount, shell.points().size(), "points");
    if (!vertices.ok()) return vertices;
    auto faces = CheckRange(foffset, fcount, static_cast<size_t>(shell.FaceCount()), "faces");
    if (!faces.ok()) return faces;
    WritePoints(points, std::span<const Point>(shell.points()).subspan(static_cast<size_t>(voffset),
                                                                       static_cast<size_t>(vcount)));
    std::vector<int> entries;
    FaceRange(shell.FaceList(), foffset, fcount, entries);
    Write(flist_length, static_cast<int>(entries.size()));
    WriteInts(face_list, entries);
    return Done{};
  });
}

extern "C" void HC_Show_Shell_By_Tristrips_Size(long long key, int* pcount, int* tristrips_length,
                                                int* face_indices_length) {
  HC_Show_Shell_By_Tristrips(key, pcount, nullptr, tristrips_length, nullptr, face_indices_length, nullptr);
}

// A shell made from a face list has no strips: their lengths come back 0.
extern "C" void HC_Show_Shell_By_Tristrips(long long key, int* pcount, void* points, int* tristrips_length,
                                           int* tristrips, int* face_indices_length, int* face_indices) {
  Run(Access::kRead, "HC_Show_Shell_By_Tristrips", [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    const Shell& shell = *found.value();
    Write(pcount, static_cast<int>(shell.points().size()));
    WritePoints(points, shell.points());
    Write(tristrips_length, static_cast<int>(shell.tristrips().size()));
    WriteInts(tristrips, shell.tristrips());
    Write(face_indices_length, static_cast<int>(shell.face_ids().size()));
    WriteInts(face_indices, shell.face_ids());
    return Done{};
  });
}

// Holes do not count; a mesh has two triangles per quad.
extern "C" void HC_Show_Faces_Count(long long key, int* count) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Surface>(session, key, {GeometryType::kShell, GeometryType::kMesh}, "shell or mesh");
    if (!found.ok()) return found.error();
    Write(count, found.value()->FaceCount());
    return Done{};
  });
}

extern "C" void HC_Show_Shell_Face_Count(long long key, int* count) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    Write(count, found.value()->FaceCount());
    return Done{};
  });
}

// Offset -1 means the end. Points a face uses cannot be deleted.
extern "C" void HC_Edit_Shell_Points(long long key, int offset, int ndelete, int insert, void const* points) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto found = FindShell(session, key);
    if (!found.ok()) return found.error();
    Shell& shell = *found.value();
    const long long at = offset == -1 ? static_cast<long long>(shell.points().size()) : offset;
    auto inside = CheckRange(at, ndelete, shell.points().size(), "deleted points");
    if (!inside.ok()) return inside;
    auto read = ReadPoints(points, insert, "inserted points");
    if (!read.ok()) return read.error();
    return shell.EditPoints(static_cast<size_t>(at), static_cast<size_t>(ndelete), read.value());
  });
}

extern "C" long long HC_Insert_Mesh(int rows, int columns, void const* points) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    if (rows < 1 || columns < 1) return Error(errc::kDegenerate, "a mesh needs at least one row and one column");
    if (static_cast<long long>(rows) * columns > INT32_MAX) return Error(errc::kOutOfRange, "the mesh is too large");
    auto read = ReadPoints(points, rows * columns, "mesh points");
    if (!read.ok()) return read.error();
    return InsertIntoCurrent(session, std::make_unique<Mesh>(rows, columns, std::move(read.value())));
  });
}

extern "C" void HC_Show_Mesh_Size(long long key, int* rows, int* columns) {
  HC_Show_Mesh(key, rows, columns, nullptr);
}

extern "C" void HC_Show_Mesh(long long key, int* rows, int* columns, void* points) {
  Run(Access::kRead, "HC_Show_Mesh", [&](Session& session) -> Status {
    auto found = FindGeometryAs<Mesh>(session, key, {GeometryType::kMesh}, "mesh");
    if (!found.ok()) return found.error();
    Write(rows, found.value()->rows());
    Write(columns, found.value()->columns());
    WritePoints(points, found.value()->points());
    return Done{};
  });
}

extern "C" void HC_Edit_Mesh(long long key, int row_offset, int column_offset, int row_count, int column_count,
                             void const* points) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Mesh>(session, key, {GeometryType::kMesh}, "mesh");
    if (!found.ok()) return found.error();
    Mesh& mesh = *found.value();
    auto rows = CheckRange(row_offset, row_count, static_cast<size_t>(mesh.rows()), "rows");
    if (!rows.ok()) return rows;
    auto columns = CheckRange(column_offset, column_count, static_cast<size_t>(mesh.columns()), "columns");
    if (!columns.ok()) return columns;
    auto read = ReadPoints(points, row_count * column_count, "mesh points");
    if (!read.ok()) return read.error();
    mesh.EditBlock(row_offset, column_offset, row_count, column_count, read.value());
    return Done{};
  });
}
