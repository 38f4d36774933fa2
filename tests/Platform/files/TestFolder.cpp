#include "tests/Platform/files/TestFolder.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

TestFolder::TestFolder() {
    const std::filesystem::path parent =
        ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : std::filesystem::temp_directory_path();
    std::string name = (parent / "test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("mkdtemp");
    }
    path_ = name;
}

TestFolder::~TestFolder() {
    // A disk that a test has mounted goes away with its namespace, or here.
    ::umount2(path_.c_str(), MNT_DETACH);
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

mode_t TestFolder::modeOf(const std::filesystem::path& path) {
    return static_cast<mode_t>(std::filesystem::symlink_status(path).permissions());
}

bool mountSmallDisk(const std::filesystem::path& folder) {
    const auto user = ::geteuid();
    if (::unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) {
        return false;
    }
    if (user != 0) {
        std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k,mode=0700") == 0;
}

bool makeReadOnly(const std::filesystem::path& folder) {
    return ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}
