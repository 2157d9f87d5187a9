// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Every function of the system library that comes with the program, evaluated through the
// engine against values computed apart from it (40-digit arithmetic with the engine's
// constants, rounded to 14 digits), and the file's own rules: each function tested,
// described, and named apart from the embedded names.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "../engine/line_table.h"
#include "library_files.h"
#include "library_lookup.h"
#include "multi_string.h"
#include "parser.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::evaluate;

struct LibraryCase {
    const char *line;
    const char *expected;
};

// Angles in degrees, the engine's initial mode.
constexpr LibraryCase kSystemLibraryCases[] = {
    {"CIRCLEAREA[2.5]", " = 19.634954084936"},
    {"CIRCUMFERENCE[3]", " = 18.849555921539"},
    {"SPHEREVOLUME[2]", " = 33.510321638291"},
    {"SPHEREAREA[0.5]", " = 3.1415926535898"},
    {"CYLINDERVOLUME[2, 5]", " = 62.831853071796"},
    {"CONEVOLUME[3, 4]", " = 37.699111843078"},
    {"HERONAREA[3, 4, 5]", " = 6"},
    {"HERONAREA[7, 8, 9]", " = 26.832815729997"},
    {"DISTANCE2D[1, 2, 4, 6]", " = 5"},
    {"DISTANCE3D[0, 0, 0, 1, 2, 2]", " = 3"},
    {"DISTANCE3D[1, 1, 1, 2, 3, 4]", " = 3.7416573867739"},
    {"POLYGONANGLE[6]", " = 120"},
    {"POLYGONANGLE[7]", " = 128.57142857143"},
    {"DISCRIMINANT[2, 3, -5]", " = 49"},
    {"QUADROOT1[1, -3, 2]", " = 2"},
    {"QUADROOT2[2, 3, -5]", " = -2.5"},
    {"QUADROOT1[1, 2, 5]", " = -1+2i"},
    {"NTHROOT[32, 5]", " = 2"},
    {"NTHROOT[10, 3]", " = 2.1544346900319"},
    {"ARITHSUM[3, 4, 10]", " = 210"},
    {"GEOMSUM[1, 0.5, 10]", " = 1.998046875"},
    {"GEOMSUM[2, 3, 5]", " = 242"},
    {"TRIANGULAR[100]", " = 5050"},
    {"FIBONACCI[10]", " = 55"},
    {"FIBONACCI[50]", " = 12586269025"},
    {"PERCENTCHANGE[80, 100]", " = 25"},
    {"FUTUREVALUE[1000, 0.05, 10]", " = 1628.8946267774"},
    {"PRESENTVALUE[1000, 0.05, 10]", " = 613.91325354076"},
    {"CONTCOMPOUND[1000, 0.05, 10]", " = 1648.7212707001"},
    {"SIMPLEINTEREST[1000, 0.05, 3]", " = 150"},
    {"LOANPAYMENT[200000, 0.005, 360]", " = 1199.1010503055"},
    {"ANNUITYFV[100, 0.01, 12]", " = 1268.2503013197"},
    {"ANNUITYPV[100, 0.01, 12]", " = 1125.5077473485"},
    {"EFFECTIVERATE[0.12, 12]", " = 0.12682503013197"},
    {"DOUBLINGTIME[0.07]", " = 10.244768351059"},
    {"KINETICENERGY[2, 3]", " = 9"},
    {"POTENTIALENERGY[10, 2]", " = 196.133"},
    {"FREEFALLTIME[20]", " = 2.0196199771026"},
    {"FREEFALLSPEED[20]", " = 19.805706248453"},
    {"PROJECTILERANGE[20, 30]", " = 35.32400580359"},
    {"PENDULUMPERIOD[1]", " = 2.006409292589"},
    {"GRAVFORCE[1000, 2000, 3]", " = 1.4829333333333e-05"},
    {"IDEALGASPRESSURE[1, 273.15, 0.0224]", " = 101386.69513393"},
    {"PHOTONENERGY[5E+14]", " = 2.0678743714596"},
    {"WAVELENGTH[1E+8]", " = 2.99792458"},
    {"LORENTZFACTOR[1E+8]", " = 1.0607520004442"},
    {"OHMSLAW[12, 8]", " = 1.5"},
    {"ELECTRICPOWER[230, 2.5]", " = 575"},
    {"CELSIUSTOF[100]", " = 212"},
    {"CELSIUSTOF[-40]", " = -40"},
    {"FTOCELSIUS[98.6]", " = 37"},
    {"CELSIUSTOK[25]", " = 298.15"},
    {"KTOCELSIUS[0]", " = -273.15"},
    {"MILESTOKM[26.2]", " = 42.1648128"},
    {"KMTOMILES[42.195]", " = 26.218757456454"},
    {"INCHTOCM[12]", " = 30.48"},
    {"CMTOINCH[100]", " = 39.370078740157"},
    {"FEETTOM[1000]", " = 304.8"},
    {"MTOFEET[8848]", " = 29028.871391076"},
    {"POUNDTOKG[150]", " = 68.0388555"},
    {"KGTOPOUND[70]", " = 154.32358352941"},
    {"GALLONTOLITRE[5]", " = 18.92705892"},
    {"LITRETOGALLON[50]", " = 13.208602617907"},
    {"KMHTOMS[90]", " = 25"},
    {"MSTOKMH[12.5]", " = 45"},
    {"SIGNUM[-3.5]", " = -1"},
    {"SIGNUM[0]", " = 0"},
    {"SIGNUM[2]", " = 1"},
    {"CLAMP[15, 0, 10]", " = 10"},
    {"CLAMP[-2, 0, 10]", " = 0"},
    {"CLAMP[7.5, 0, 10]", " = 7.5"},
    {"LERP[10, 20, 0.25]", " = 12.5"},
    {"FRACPART[-3.75]", " = -0.75"},
    {"ISEVEN[10]", " = 1"},
    {"ISEVEN[7]", " = 0"},
    {"HYPOT3[2, 3, 6]", " = 7"},
    {"HYPOT3[1, 1, 1]", " = 1.7320508075689"},
};

// The engine cuts every operand to 14 digits, so a chain of steps may differ from the exact
// value in its last printed digit or two: answers agree when their texts are equal or their
// real values lie within a few units of the 13th digit.
::testing::AssertionResult answers_agree(const std::string &actual, const std::string &expected) {
    if (actual == expected) return ::testing::AssertionSuccess();
    const auto value = [](const std::string &answer, double &out) {
        if (!answer.starts_with(" = ")) return false;
        char *end = nullptr;
        out = std::strtod(answer.c_str() + 3, &end);
        return *end == '\0';
    };
    double a = 0;
    double b = 0;
    if (value(actual, a) && value(expected, b) && std::fabs(a - b) <= 1e-12 * std::fabs(b))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "\"" << actual << "\" against \"" << expected << "\"";
}

const std::string kSystemLibrary = std::string(QUINDAR_LIBRARY_DIR) + "Quindar.lib";

class SystemLibrary : public ::testing::Test {
protected:
    void SetUp() override { install_function_libraries(parser); }

    Parser parser{QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR};
};

TEST_F(SystemLibrary, EveryFunctionMatchesIndependentValues) {
    for (const LibraryCase &c : kSystemLibraryCases)
        EXPECT_TRUE(answers_agree(evaluate(parser, c.line), c.expected)) << c.line;
}

// The names of each category's functions, as "NAME[a,b]".
std::vector<std::string> function_names(VarFunIniFile &file, const std::string &category) {
    const long size = file.SizeOfFunctionNames(category.c_str());
    if (size <= 0) return {};
    std::vector<char> list(static_cast<std::size_t>(size));
    file.GetFunctionNames(list.data(), static_cast<int>(size), category.c_str());
    return split_multi_string(list.data(), list.size());
}

TEST_F(SystemLibrary, EveryFunctionIsTestedDescribedAndNamedApart) {
    VarFunIniFile file(kSystemLibrary.c_str());
    const std::vector<std::string> categories = library_categories(file);
    EXPECT_EQ(categories.size(), 6u);
    int count = 0;
    for (const std::string &category : categories) {
        const auto names = function_names(file, category);
        EXPECT_FALSE(names.empty()) << category;
        for (const std::string &full : names) {
            ++count;
            const std::string short_name = full.substr(0, full.find('['));
            bool tested = false;
            for (const LibraryCase &c : kSystemLibraryCases)
                tested = tested || std::string(c.line).starts_with(short_name + "[");
            EXPECT_TRUE(tested) << short_name;
            char description[512];
            EXPECT_TRUE(file.GetFunctionValue(short_name.c_str(), description, sizeof description,
                                              category.c_str()))
                << short_name;
            EXPECT_FALSE(parser.is_internal_function(short_name.c_str())) << short_name;
            EXPECT_FALSE(parser.is_constant(short_name.c_str())) << short_name;
        }
    }
    EXPECT_GE(count, 60);
}

TEST_F(SystemLibrary, CallsTakeEitherBracketAndAnyCase) {
    const LibraryCase cases[] = {
        {"circlearea(2)", " = 12.566370614359"},
        {"CircleArea[2]", " = 12.566370614359"},
        // Arguments go in whole, so a sum is one value inside the body.
        {"CIRCLEAREA[1+1]", " = 12.566370614359"},
        {"2CIRCLEAREA[1]", " = 6.2831853071796"},
        {"CIRCLEAREA[SQRT[4]]-CIRCLEAREA[2]", " = 0"},
        // A library function in the argument of another, and in the body of a user function.
        {"CELSIUSTOF[KTOCELSIUS[373.15]]", " = 212"},
        {"area2[x] = CIRCLEAREA[x]*2", ""},
        {"area2[1]", " = 6.2831853071796"},
    };
    for (const LibraryCase &c : cases) EXPECT_EQ(evaluate(parser, c.line), c.expected) << c.line;
}

}  // namespace
}  // namespace quindar
