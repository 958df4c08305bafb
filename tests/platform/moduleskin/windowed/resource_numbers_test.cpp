// The numbers by which hosts and other libraries know the resources: they stand here once more, as the contract has
// them.

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include <afxwin.h>

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"

namespace
{

struct NumberedResource
{
    const char* name;
    LPCWSTR type;
    int number;      // in the contract
    int identifier;  // in the header
};

void PrintTo(const NumberedResource& resource, std::ostream* out)
{
    *out << resource.name;
}

class ResourceNumber : public testing::TestWithParam<NumberedResource>
{
};

TEST_P(ResourceNumber, IsThatOfTheContractInHeaderAndLibrary)
{
    EXPECT_EQ(GetParam().identifier, GetParam().number);
    const HMODULE library = ::GetModuleHandleW(L"ModuleSkin.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(::FindResourceW(library, MAKEINTRESOURCEW(GetParam().number), GetParam().type), nullptr);
}

const NumberedResource kNumberedResources[] = {
    {"CalcTolDialog", RT_DIALOG, 103, IDD_CALC_TOL},
    {"EditTolDialog", RT_DIALOG, 1007, IDD_EDIT_TOL},
    {"WeightDialog", RT_DIALOG, 1010, IDD_WEIGHT},
    {"EditCloseTolDialog", RT_DIALOG, 1011, IDD_EDIT_CLOSE_TOL},
    {"VariableDialog", RT_DIALOG, 1012, IDD_VARIABLE},
    {"CalcTolMenu", RT_MENU, 103, IDR_CALC_TOL_MENU},
    {"ChainContextMenu", RT_MENU, 1009, IDR_CHAIN_CONTEXT_MENU},
    {"ClosingContextMenu", RT_MENU, 1010, IDR_CLOSING_CONTEXT_MENU},
    {"Kind2", RT_BITMAP, 1000, IDB_KIND_2},
    {"ClosingImages", RT_BITMAP, 1001, IDB_CLOSING_IMAGES},
    {"Kind3", RT_BITMAP, 1002, IDB_KIND_3},
    {"Kind1", RT_BITMAP, 1003, IDB_KIND_1},
    {"ChainImages", RT_BITMAP, 1004, IDB_CHAIN_IMAGES},
};

INSTANTIATE_TEST_SUITE_P(Of, ResourceNumber, testing::ValuesIn(kNumberedResources), testing::PrintToStringParamName());

const std::pair<int, int> kStringNumbers[] = {
    {1083, IDS_COLUMN_LINK},          {51691, IDS_UPPER_DEV_MALFORMED},
    {51692, IDS_LOWER_DEV_MALFORMED}, {51693, IDS_DEVIATIONS_INCONSISTENT},
    {52695, IDS_COLUMN_NOMINAL},      {52696, IDS_COLUMN_FIELD},
    {52697, IDS_COLUMN_WEIGHT_FIXED}, {52698, IDS_COLUMN_WEIGHT},
    {52699, IDS_MEAN_MISSING},        {52700, IDS_MEAN_OUTSIDE_FIELD},
    {52701, IDS_UPPER_LIMIT},         {52702, IDS_LOWER_LIMIT},
    {52703, IDS_NAME_MISSING},        {52704, IDS_DEVIATIONS_MISSING},
    {52705, IDS_NOMINAL_CAPTION},     {52706, IDS_DIAGRAM_CAPTION},
    {52707, IDS_COLUMN_UPPER_DEV},    {52708, IDS_COLUMN_LOWER_DEV},
    {52709, IDS_MISMATCH_LINE_1},     {52710, IDS_MISMATCH_LINE_2},
    {52711, IDS_MISMATCH_LINE_3},     {52712, IDS_WEIGHT_FIXED_YES},
    {52713, IDS_WEIGHT_FIXED_NO},     {52718, IDS_INCREASING},
    {52719, IDS_DECREASING},          {52720, IDS_LAW_UNIFORM},
    {52721, IDS_LAW_NORMAL},          {52722, IDS_LAW_TRIANGULAR},
};

TEST(StringNumbers, AreThoseOfTheContract)
{
    for (const auto& [number, identifier] : kStringNumbers)
        EXPECT_EQ(identifier, number);
}

static_assert(kModuleCalcTol == 1, "what the guard of the resources is given");

}  // namespace
