// Entry point of the widget test binaries: one QApplication for all tests,
// on the offscreen platform unless the caller chose another. With
// "--screenshot CARTELLA" it runs the SCREENSHOT bodies instead, saving their
// pictures into CARTELLA.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>

#include <cstring>
#include <utility>
#include <vector>

#include "Screenshot.h"

namespace combi::test {
namespace {

std::vector<std::pair<const char*, Fotografia>>& Registro() {
    static std::vector<std::pair<const char*, Fotografia>> registro;
    return registro;
}

class Fotografa : public ::testing::Test {
public:
    Fotografa(Fotografia corpo, QString cartella) : corpo_(corpo), cartella_(std::move(cartella)) {}
    void TestBody() override { corpo_(cartella_); }

private:
    Fotografia corpo_;
    QString cartella_;
};

// Takes "--screenshot CARTELLA" out of the arguments; empty when absent.
QString CartellaScreenshot(int& argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--screenshot") != 0) continue;
        const QString cartella = QString::fromLocal8Bit(argv[i + 1]);
        for (int j = i; j + 2 <= argc; ++j) argv[j] = argv[j + 2];
        argc -= 2;
        return cartella;
    }
    return {};
}

}  // namespace

bool RegistraScreenshot(const char* nome, Fotografia corpo) {
    Registro().emplace_back(nome, corpo);
    return true;
}

}  // namespace combi::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    const QString cartella = combi::test::CartellaScreenshot(argc, argv);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    if (!cartella.isEmpty()) {
        QDir().mkpath(cartella);
        for (const auto& [nome, corpo] : combi::test::Registro())
            ::testing::RegisterTest("Screenshot", nome, nullptr, nullptr, __FILE__, __LINE__,
                                    [corpo = corpo, cartella]() -> ::testing::Test* {
                                        return new combi::test::Fotografa(corpo, cartella);
                                    });
        ::testing::GTEST_FLAG(filter) = "Screenshot.*";
    }
    return RUN_ALL_TESTS();
}
