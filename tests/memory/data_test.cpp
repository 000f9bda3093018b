// Rules of the system that no port lets a program set up by itself.
#include <gtest/gtest.h>

#include "platform/memory/MemoryDesktop.h"

namespace platform {
namespace {

TEST(MemoryData, CopyingRefusesAHiddenOrReadOnlyTarget) {
  MemoryDesktop desktop;
  MemoryFiles& files = desktop.files();
  files.Put(u"C:\\a.txt", "neu");
  for (const std::uint32_t attribute : {kAttributeHidden, kAttributeReadOnly, kAttributeSystem}) {
    files.Put(u"C:\\b.txt", "alt");
    files.SetAttributes(u"C:\\b.txt", attribute);
    EXPECT_EQ(files.Copy(u"C:\\a.txt", u"C:\\b.txt"), attribute == kAttributeSystem);
    EXPECT_TRUE(files.Rename(u"C:\\b.txt", u"C:\\B.TXT")) << "which asks for no attribute";
  }
}

TEST(MemoryData, ARemovableDriveIsAskedForItsMediumByItsLetterAlone) {
  MemoryDesktop desktop;
  desktop.files().AddDrive({u'E', DriveKind::Removable, true, u"Stick", u"FAT32", 7});
  desktop.files().AddDrive({u'F', DriveKind::CdRom, false, u"", u"", 0});
  const auto drives = desktop.files().Drives();
  ASSERT_EQ(drives.size(), 3u);
  EXPECT_FALSE(drives[1].ready);
  EXPECT_EQ(drives[1].volumeName, u"");
  EXPECT_EQ(desktop.files().DriveAt(u'e')->volumeName, u"Stick");
  EXPECT_FALSE(desktop.files().DriveAt(u'F')->ready);
  desktop.files().Put(u"E:\\a.txt", "");
  EXPECT_FALSE(desktop.files().Rename(u"E:\\a.txt", u"C:\\a.txt")) << "to another drive";
}

TEST(MemoryData, TheOtherCountryWritesTheMonthFirst) {
  MemoryDesktop desktop;
  desktop.locale().Use(Language::English);
  const DateTime date{2026, 3, 9};
  for (const auto* text : {u"3/9/2026", u"March 9, 2026", u"Mon, Mar 9, 2026"}) {
    EXPECT_EQ(desktop.locale().ParseDate(text), date);
  }
  EXPECT_EQ(desktop.locale().ParseTime(desktop.locale().LongTime({2026, 3, 9, 15, 5, 4}))->hour,
            15);
}

TEST(MemoryData, AFailureIsToldAsTheHeadersSay) {
  MemoryDesktop desktop;
  desktop.files().Put(u"C:\\a.txt", "");
  for (const auto* call : {"Files.Rename", "Files.DriveAt", "Locale.ParseDate", "Locale.ParseTime",
                           "Text.Faces", "Text.Resolve", "Shell.IconOf", "Shell.LogonName"}) {
    desktop.faults().FailAlways(call);
  }
  EXPECT_FALSE(desktop.files().Rename(u"C:\\a.txt", u"C:\\b.txt"));
  EXPECT_FALSE(desktop.files().DriveAt(u'C'));
  EXPECT_FALSE(desktop.locale().ParseDate(u"9.3.2026"));
  EXPECT_FALSE(desktop.locale().ParseTime(u"15:05"));
  EXPECT_TRUE(desktop.text().Faces().empty());
  EXPECT_EQ(desktop.text().Resolve({}).face, u"");
  EXPECT_FALSE(desktop.shell().IconOf({}, 0, IconSize::Small));
  EXPECT_EQ(desktop.shell().LogonName(), u"");
}

}  // namespace
}  // namespace platform
