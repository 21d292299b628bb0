#pragma once
// A test fixture with a folder of its own in the temporary folder, removed
// after each test, so that tests running side by side never share files.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace combi::test {

class TestConCartella : public ::testing::Test {
protected:
    explicit TestConCartella(std::string prefisso) : prefisso_(std::move(prefisso)) {}
    void SetUp() override {
        cartella_ = std::filesystem::temp_directory_path() / (prefisso_ + std::to_string(::getpid()));
        std::filesystem::create_directories(cartella_);
    }
    void TearDown() override { std::filesystem::remove_all(cartella_); }
    std::string Percorso(const std::string& nome) const { return (cartella_ / nome).string(); }

    std::filesystem::path cartella_;

private:
    std::string prefisso_;
};

}  // namespace combi::test
