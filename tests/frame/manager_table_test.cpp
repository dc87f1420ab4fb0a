// The manager's virtual table is an exported contract: a host's manager is
// called through it by slot. These tests hold the table to the slots the
// contract gives, counting the destructor as slot 1.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "sceneward/frame/zelmo_sceneward.h"

namespace {

const std::vector<std::string>& TableNames() {
  static const std::vector<std::string> names = {
#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) #name,
#include "sceneward/frame/manager_operations.def"
  };
  return names;
}

const std::string& NameAtSlot(std::size_t slot) { return TableNames().at(slot - 2); }

TEST(ManagerTableTest, HasTheDestructorAnd384Operations) {
  EXPECT_EQ(TableNames().size(), 384u);
  EXPECT_EQ(kManagerVirtualSlots, 385);
}

TEST(ManagerTableTest, OperationsSitAtTheirContractSlots) {
  const std::vector<std::pair<std::size_t, std::string>> anchors = {
      {2, "Lock"},
      {3, "UnLock"},
      {6, "HasStreamLock"},
      {7, "SetErrorHandler"},
      {10, "Flush_Free_Chains"},
      {11, "IsInitialized"},
      {12, "HC_Append_Modelling_Matrix"},
      {21, "HC_Check_Double_Precision"},
      {53, "HC_Compute_Transformed_Points"},
      {56, "HC_Compute_Vector_Length"},
      {64, "HC_Define_System_Options"},
      {106, "HC_Insert_Text"},
      {109, "HC_Create_Segment"},
      {139, "HC_Open_Segment"},
      {152, "HC_Report_Error"},
      {153, "HC_Reset_System"},
      {244, "HC_Show_Modelling_Matrix"},
      {246, "HC_Show_NURBS_Curve_Size"},
      {282, "HC_Show_Priority"},
      {292, "HC_Show_Shell"},
      {298, "HC_Show_Text"},
      {305, "HC_Show_User_Options"},
      {350, "HC_Begin_Local_Texture_Search"},
      {377, "HIC_Abort_Update"},
      {382, "ZelmosInitCallbacks"},
      {383, "ZelmosInitProCallbacks"},
      {385, "HC_UnDefine_Highlight"},
  };
  for (const auto& [slot, name] : anchors) EXPECT_EQ(NameAtSlot(slot), name) << "slot " << slot;
}

TEST(ManagerTableTest, OnlyTheFiveOverloadedNamesTakeTwoSlots) {
  std::vector<std::string> sorted = TableNames();
  std::sort(sorted.begin(), sorted.end());
  std::vector<std::string> repeated;
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    if (sorted[i] == sorted[i - 1]) repeated.push_back(sorted[i]);
  }
  EXPECT_EQ(repeated, (std::vector<std::string>{"HC_Compute_Transformed_Points",
                                                "HC_Compute_Vector_Length", "HC_Create_Segment",
                                                "HC_Open_Segment", "HC_Show_Shell"}));
}

#if defined(__GXX_ABI_VERSION)

// The slot of a virtual operation as the Itanium C++ ABI encodes it in a
// pointer to member: one more than the byte offset in the table. The table
// starts with the destructor's two entries (complete and deleting), so an
// operation's index equals its contract slot. -1 for a function that is not
// virtual.
template <class PointerToMember>
std::ptrdiff_t VirtualSlot(PointerToMember member) {
  struct {
    std::uintptr_t pointer;
    std::ptrdiff_t adjustment;
  } raw;
  static_assert(sizeof(raw) == sizeof(member));
  std::memcpy(&raw, &member, sizeof raw);
  if ((raw.pointer & 1) == 0) return -1;
  return static_cast<std::ptrdiff_t>((raw.pointer - 1) / sizeof(void*));
}

TEST(ManagerTableTest, EachRowIsTheVirtualSlotOfItsPosition) {
  std::ptrdiff_t slot = 2;
#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments)                   \
  EXPECT_EQ(VirtualSlot(static_cast<result (ZelmoScenewardInterface::*) parameters>(      \
                &ZelmoScenewardInterface::name)),                                          \
            slot)                                                                          \
      << #name;                                                                            \
  ++slot;
#include "sceneward/frame/manager_operations.def"
}

TEST(ManagerTableTest, OverloadsTakeTheirSlotsInContractOrder) {
  using I = ZelmoScenewardInterface;
  EXPECT_EQ(VirtualSlot(static_cast<void (I::*)(int, ht_point const*, float const*, ht_point*)>(
                &I::HC_Compute_Transformed_Points)),
            53);
  EXPECT_EQ(VirtualSlot(static_cast<void (I::*)(int, void const*, float const*, void*)>(
                &I::HC_Compute_Transformed_Points)),
            54);
  EXPECT_EQ(VirtualSlot(static_cast<double (I::*)(ht_point*)>(&I::HC_Compute_Vector_Length)), 55);
  EXPECT_EQ(VirtualSlot(static_cast<double (I::*)(void const*)>(&I::HC_Compute_Vector_Length)), 56);
  EXPECT_EQ(VirtualSlot(static_cast<long long (I::*)(char const*)>(&I::HC_Create_Segment)), 109);
  EXPECT_EQ(VirtualSlot(static_cast<long long (I::*)(ZString const&)>(&I::HC_Create_Segment)), 110);
  EXPECT_EQ(VirtualSlot(static_cast<long long (I::*)(char const*)>(&I::HC_Open_Segment)), 139);
  EXPECT_EQ(VirtualSlot(static_cast<long long (I::*)(ZString const&)>(&I::HC_Open_Segment)), 140);
  EXPECT_EQ(VirtualSlot(static_cast<void (I::*)(long long, int*, HOOPS3DVec*, int*, int*)>(
                &I::HC_Show_Shell)),
            292);
  EXPECT_EQ(
      VirtualSlot(static_cast<void (I::*)(long long, int*, void*, int*, int*)>(&I::HC_Show_Shell)),
      293);
}

TEST(ManagerTableTest, ManagerKeepsTheInterfaceSlots) {
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::Lock), 2);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::IsInitialized), 11);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::HC_UnDefine_Highlight), 385);
}

TEST(ManagerTableTest, ForwardsBeyondTheTableAreNotVirtual) {
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::HC_Insert_Grid), -1);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::HC_Show_Grid), -1);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::HC_Set_Variable_Marker_Size), -1);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::HC_UnSet_Window_Pattern), -1);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::RemoveBackQuotes), -1);
  EXPECT_EQ(VirtualSlot(&ZelmoSceneward::SetIsInitialized), -1);
}

#endif  // __GXX_ABI_VERSION

}  // namespace
