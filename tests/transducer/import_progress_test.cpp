// The bar of an import: the estimate by the length of the file, and how often the screen hears of it.
#include <gtest/gtest.h>

#include "support/desk.h"

namespace zefirondo {
namespace {

/// A peak of 45 ohm at 40 Hz with its crossings, then rows that make the passes long; of so many bytes.
std::string Sized(int rows, std::size_t length) {
  std::string text = "20 6\r\n40 45\r\n50 20\r\n60 6\r\n";
  for (int i = 4; i < rows; ++i) text += "400 7\r\n";
  return std::string(length - text.size() - 2, ';') + "\r\n" + text;
}

class ImportProgress : public testing::Test {
 protected:
  ImportProgress() {
    desk.BeginImpedance();
    desk.sheet.mnuimporta.enabled = true;
    desk.state.txtrvc = "5";
    desk.TakeOut();
  }
  void Import(const std::string& bytes) {
    desk.platform.files.emplace_back(desk.folder.Write("m.ovl", bytes));
    desk.Choose("mnuimporta");
  }
  Desk desk;
};

struct EstimateRow {
  std::size_t length;
  int rows;
  int percent;
};

class ImportEstimate : public ImportProgress, public testing::WithParamInterface<EstimateRow> {};

// With n rows in the file n − 1 are kept: n − 1 steps of reading, n for the minimum, 4 to Fh, 2 to Fl. The steps of
// 100 to the estimate, by hand:
//   168661: floor(168661 / 10.0) = 16866, 4005 steps, 23.75;  666920: 66692, 60005 steps, 89.97;
//   666921: floor(666921 / 10.5) = 63516, 60005 steps, 94.47;  1391952: 132566, 120005 steps, 90.52;
//   1391953: floor(1391953 / 10.7) = 130089, 120005 steps, 92.25.
TEST_P(ImportEstimate, FollowsTheLengthOfTheFile) {
  Import(Sized(GetParam().rows, GetParam().length));
  EXPECT_EQ(desk.TakeOut().find("message"), std::string::npos);
  EXPECT_EQ(desk.sheet.prgbar.progress, GetParam().percent);
  EXPECT_EQ(desk.platform.progress_updates, GetParam().percent + 1);  // each whole percent from 0 on, once
}

INSTANTIATE_TEST_SUITE_P(Table, ImportEstimate,
                         testing::Values(EstimateRow{168661, 2000, 24}, EstimateRow{666920, 30000, 90},
                                         EstimateRow{666921, 30000, 94}, EstimateRow{1391952, 60000, 91},
                                         EstimateRow{1391953, 60000, 92}),
                         [](const auto& row) { return "Of" + std::to_string(row.param.length); });

TEST_F(ImportProgress, NeverGoesBeyondNinetyNine) {
  Import(Sized(24000, 170000));  // 48005 steps of an estimate of 17000
  EXPECT_EQ(desk.sheet.prgbar.progress, 99);
  EXPECT_EQ(desk.platform.progress_updates, 100);
}

// An estimate of 17000 has steps that lie exactly between two percents, which are no reason to paint twice.
TEST_F(ImportProgress, IsShownNoMoreThanAHundredTimes) {
  for (const std::size_t length : {168661U, 170000U, 180000U, 200000U, 666921U}) {
    desk.platform.progress_updates = 0;
    desk.sheet.mnuimporta.enabled = true;
    Import(Sized(22000, length));
    EXPECT_LE(desk.platform.progress_updates, 100) << length;
    EXPECT_GT(desk.platform.progress_updates, 50) << length;
  }
}

TEST_F(ImportProgress, IsHiddenBehindTheImport) {
  Import(Sized(2000, 168661));
  EXPECT_FALSE(desk.sheet.prgbar.visible);
}

TEST_F(ImportProgress, OfAShortFileFailsBeforeTheBarMoves) {
  Import(Sized(2000, 168660));
  EXPECT_EQ(desk.platform.progress_updates, 0);
  EXPECT_FALSE(desk.sheet.prgbar.visible);
  EXPECT_NE(desk.TakeOut().find("The file could not be opened. Division by zero"), std::string::npos);
}

TEST_F(ImportProgress, BeginsAnewWithEveryImport) {
  Import(Sized(24000, 170000));
  desk.sheet.mnuimporta.enabled = true;
  Import(Sized(2000, 170000));  // 4005 of 17000 steps
  EXPECT_EQ(desk.sheet.prgbar.progress, 24);
}

}  // namespace
}  // namespace zefirondo
