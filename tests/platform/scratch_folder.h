#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/files.h"

/// A fresh folder that is the working folder for as long as the object lives.
class Scratch_Folder {
  public:
    Scratch_Folder() {
        std::filesystem::create_directory(path_);
        std::filesystem::current_path(path_);
    }
    Scratch_Folder(const Scratch_Folder&) = delete;
    Scratch_Folder& operator=(const Scratch_Folder&) = delete;
    ~Scratch_Folder() {
        std::filesystem::current_path(old_);
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::string& Path() const { return path_; }

    /// A file with that content, its folders with it; a native path.
    static void Put(const std::string& native, const std::string& content) {
        const auto folder = std::filesystem::path(native).parent_path();
        if (!folder.empty()) std::filesystem::create_directories(folder);
        std::ofstream(std::filesystem::path(native), std::ios::binary) << content;
    }

    /// What the program reads of a file.
    static std::string Content(std::string_view path) {
        platform::Bytes bytes;
        const bool read = platform::Read_File(path, bytes);
        return read ? std::string(bytes.begin(), bytes.end()) : "(unread)";
    }

  private:
    const std::string name_ = "skerrand_" + std::to_string(std::random_device()());
    const std::string path_ = (std::filesystem::temp_directory_path() / name_).string();
    const std::filesystem::path old_ = std::filesystem::current_path();
};
