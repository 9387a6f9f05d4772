// Places where a walk through the file system can start, and the walk itself.
#pragma once

#include <string>
#include <vector>

namespace platform {

/// On Windows the drives ("c:" and the volume's label); on Linux the root, the home folder and the
/// mounted volumes.
struct Volume {
    std::string label;
    std::string rootPath;
};

std::vector<Volume> Volumes();

/// The folder that the given volume opens: on Windows the first character of its label followed by
/// ":\", on Linux its path.
std::string VolumePath(const Volume& volume);

/// Names of the folders in `path`, sorted for the user; empty when it cannot be read.
std::vector<std::string> FoldersIn(const std::string& path);

/// Names of the files in `path` whose names end in `extension` (such as ".ini") without regard to
/// case, sorted for the user.
std::vector<std::string> FilesIn(const std::string& path, const std::string& extension);

/// `path` and the folders above it, the root first, each as a full path.
std::vector<std::string> FolderChain(const std::string& path);

/// The last name of a path; the path itself for a root.
std::string LastName(const std::string& path);

/// The folder the program was started in, or the home folder where that is the root.
std::string StartFolder();

} // namespace platform
