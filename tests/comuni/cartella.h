// A test whose current directory is an empty folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace ombrelia::prova {

class InCartella : public testing::Test {
protected:
    InCartella() : prima_(std::filesystem::current_path()), dove_(std::filesystem::temp_directory_path() / nome()) {
        std::filesystem::create_directories(dove_);
        std::filesystem::current_path(dove_);
    }
    ~InCartella() override {
        std::filesystem::current_path(prima_);
        std::filesystem::remove_all(dove_);
    }
    static void scrivi(const std::string &nome, std::string_view contenuto) {
        std::ofstream(nome, std::ios::binary).write(contenuto.data(), static_cast<std::streamsize>(contenuto.size()));
    }
    static std::string leggi(const std::string &nome) {
        std::ifstream f(nome, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), {}};
    }
    static std::size_t quanti() { return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("."), {})); }

private:
    static std::string nome() { return "ombrelia-qui-" + std::to_string(::getpid()); }
    std::filesystem::path prima_, dove_;
};

}  // namespace ombrelia::prova
