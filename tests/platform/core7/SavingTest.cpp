#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <filesystem>

#include "tests/support/FailingFiles.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

namespace fs = std::filesystem;
using test::FailingFiles;
using ::testing::AnyOf;
using ::testing::ElementsAre;

const std::string kOld = "what was there before", kNew = "what shall be there from now on";

bool Save(const String& path) { return WriteWholeFile(path, kNew.data(), kNew.size()); }

std::string ContentOf(const String& path) {
    ByteArray bytes;
    EXPECT_TRUE(ReadWholeFile(path, &bytes));
    return {bytes.begin(), bytes.end()};
}

/// Runs `work` in a process of its own and answers how that ended.
template <class Work>
int InAnotherProcess(Work work) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(work() ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

/// As somebody whom the permissions of files bind.
template <class Work>
int AsNobody(Work work) {
    return InAnotherProcess([&] {
        constexpr uid_t kNobody = 65534;
        if (::geteuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) ::_exit(77);
        return work();
    });
}

class SavingTest : public ::testing::Test {
protected:
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.Path().Utf8()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }
    fs::path Native() const { return path_.Utf8(); }

    const test::TemporaryFolder folder_;
    const String path_ = folder_.Write("skin.theme", kOld);
};

TEST_F(SavingTest, AFailureAtAnyStepLosesNothingAndLeavesNothingBehind) {
    for (int step = 0;; ++step) {
        ASSERT_LT(step, 100);
        bool saved = false, happened = false;
        {
            FailingFiles files(step);
            saved = Save(path_);
            happened = files.Happened();
        }
        EXPECT_EQ(ContentOf(path_), saved ? kNew : kOld) << step;
        EXPECT_THAT(Names(), ElementsAre("skin.theme")) << step;
        if (!happened) {
            EXPECT_GE(step, 6) << "open, several writes, sync, rename, sync";
            EXPECT_TRUE(saved);
            break;
        }
    }
}

TEST_F(SavingTest, AFailureSaysWhy) {
    const FailingFiles files(0);
    EXPECT_FALSE(Save(path_));
    EXPECT_EQ(kernel::GetLastError(), 112u);
}

TEST_F(SavingTest, AKillAtAnyStepLosesNothing) {
    for (int step = 0;; ++step) {
        ASSERT_LT(step, 100);
        const int status = InAnotherProcess([&] {
            const FailingFiles files(step, FailingFiles::Way::Kill);
            return Save(path_);
        });
        EXPECT_THAT(ContentOf(path_), AnyOf(kOld, kNew)) << step;
        if (!WIFSIGNALED(status)) {
            EXPECT_GE(step, 6);
            break;
        }
    }
    EXPECT_EQ(ContentOf(path_), kNew) << "what a killed process left behind stops nobody";
}

TEST_F(SavingTest, ADiskThatFillsUpLosesNothing) {
    const int status = InAnotherProcess([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit tiny{10, 10};
        ::setrlimit(RLIMIT_FSIZE, &tiny);
        return Save(path_);
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(ContentOf(path_), kOld);
    EXPECT_THAT(Names(), ElementsAre("skin.theme"));
}

TEST_F(SavingTest, ADeviceIsWrittenToAsItIs) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full here";
    EXPECT_FALSE(Save("/dev/full"));
    EXPECT_TRUE(Save("/dev/null"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(SavingTest, AReadOnlyFolderKeepsItsFile) {
    fs::permissions(Native(), fs::perms(0666));
    fs::permissions(folder_.Path().Utf8(), fs::perms(0555));
    const int status = AsNobody([&] { return Save(path_); });
    fs::permissions(folder_.Path().Utf8(), fs::perms(0755));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(ContentOf(path_), kOld);
    EXPECT_THAT(Names(), ElementsAre("skin.theme"));
}

TEST_F(SavingTest, AProtectedFileIsNotReplacedInAFolderThatCouldBeWrittenTo) {
    fs::permissions(Native(), fs::perms(0444));
    fs::permissions(folder_.Path().Utf8(), fs::perms(0777));
    const int status = AsNobody([&] { return Save(path_); });
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(ContentOf(path_), kOld);
}

TEST_F(SavingTest, TheFileKeepsItsPermissions) {
    fs::permissions(Native(), fs::perms(0640));
    ASSERT_TRUE(Save(path_));
    EXPECT_EQ(fs::status(Native()).permissions(), fs::perms(0640));
}

TEST_F(SavingTest, ANewFileHasThePermissionsOfAnyOther) {
    const mode_t mask = ::umask(027);
    ASSERT_TRUE(Save(folder_.Path("new.theme")));
    ::umask(mask);
    EXPECT_EQ(fs::status(Native().replace_filename("new.theme")).permissions(), fs::perms(0640));
}

TEST_F(SavingTest, ALinkStaysAndItsTargetIsReplaced) {
    const fs::path link = Native().replace_filename("link.theme");
    fs::create_symlink("skin.theme", link);
    ASSERT_TRUE(Save(link.string()));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(ContentOf(path_), kNew);
}

TEST_F(SavingTest, ALinkToNothingGetsItsTarget) {
    const fs::path link = Native().replace_filename("link.theme");
    fs::create_symlink("later.theme", link);
    ASSERT_TRUE(Save(link.string()));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(ContentOf(folder_.Path("later.theme")), kNew);
}

TEST_F(SavingTest, AFileOfAnotherSpellingIsLeftAlone) {
    ASSERT_TRUE(Save(folder_.Path("SKIN.theme")));
    EXPECT_THAT(Names(), ElementsAre("SKIN.theme", "skin.theme"));
    EXPECT_EQ(ContentOf(path_), kOld);
}

TEST_F(SavingTest, ABareNameIsInTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder_.Path().Utf8());
    EXPECT_TRUE(Save("skin.theme"));
    EXPECT_TRUE(Save("new.theme"));
    fs::current_path(before);
    EXPECT_EQ(ContentOf(path_), kNew);
    EXPECT_THAT(Names(), ElementsAre("new.theme", "skin.theme"));
}

TEST_F(SavingTest, ANameMayBeAsLongAsAnyFilesName) {
    const String path = folder_.Path(std::string(255, 'x'));
    EXPECT_TRUE(Save(path));
    EXPECT_EQ(ContentOf(path), kNew);
}

TEST_F(SavingTest, APieceByPieceFileKeepsThePartThatWasWritten) {
    const FailingFiles files(2);  // the open and one write are well
    const Ref<OutputFile> file = CreateOutputFile(path_);
    ASSERT_TRUE(file);
    size_t written = 0;
    EXPECT_FALSE(file->Write(kNew.data(), kNew.size(), &written));
    EXPECT_GT(written, 0u);
    EXPECT_LT(written, kNew.size());
    EXPECT_EQ(ContentOf(path_), kNew.substr(0, written));
}

}  // namespace
}  // namespace vxgui::core7
