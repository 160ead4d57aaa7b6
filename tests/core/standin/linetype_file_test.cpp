// Linetype definition files: what they define, and what is said about mistakes in them.
#include <gtest/gtest.h>

#include <string>

#include "linetypes/linetype_file.h"

namespace {

constexpr int kWestern = 1252;
constexpr int kChinese = 936;

LinetypeFile read(const std::string& text) { return ReadLinetypeFile(text, kWestern); }

/// The only mistake of a file that has no good definition.
LinetypeFileProblem problemOf(const std::string& text) {
    const LinetypeFile file = read(text);
    EXPECT_TRUE(file.definitions.empty()) << text;
    EXPECT_EQ(file.problems.size(), 1u) << text;
    return file.problems.empty() ? LinetypeFileProblem{} : file.problems[0];
}

LinetypeFault faultOf(const std::string& pattern) { return problemOf("*X,x\n" + pattern).fault; }

}  // namespace

TEST(LinetypeFile, HasNamesDescriptionsAndDashes) {
    const LinetypeFile file = read(
        ";; Metric\n;; second comment\n\n*DASHED,Dashed __ __ __\nA,.5,-.25\n"
        "*Dash Dot , Dash dot, with a comma\nA, 0.5, -0.25, 0, -0.25\n");
    EXPECT_TRUE(file.problems.empty());
    ASSERT_EQ(file.definitions.size(), 2u);
    EXPECT_EQ(file.definitions[0].name, L"DASHED");
    EXPECT_EQ(file.definitions[0].description, L"Dashed __ __ __");
    EXPECT_EQ(file.definitions[0].dashes, (std::vector<double>{0.5, -0.25}));
    EXPECT_EQ(file.definitions[0].line, 4);
    EXPECT_EQ(file.definitions[1].name, L"Dash Dot");
    EXPECT_EQ(file.definitions[1].description, L"Dash dot, with a comma");
    EXPECT_EQ(file.definitions[1].dashes, (std::vector<double>{0.5, -0.25, 0, -0.25}));
    EXPECT_FALSE(file.definitions[1].isComplex());
}

TEST(LinetypeFile, EndsLinesInAnyWay) {
    for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string e = end;
        const LinetypeFile file = read("; c" + e + "*A1,a" + e + "A,1,-1" + e + e + "*B1" + e + "a,2,-2");
        ASSERT_EQ(file.definitions.size(), 2u);
        EXPECT_TRUE(file.problems.empty());
        EXPECT_EQ(file.definitions[1].line, 5);
        EXPECT_EQ(file.definitions[1].description, L"");
    }
}

TEST(LinetypeFile, CommentsAndBlankLinesMayStandBetweenNameAndPattern) {
    const LinetypeFile file = read("*X,x\n\n  ; a comment\nA,1,-1,  \n\x1A");
    ASSERT_EQ(file.definitions.size(), 1u);
    EXPECT_TRUE(file.problems.empty());
    EXPECT_EQ(file.definitions[0].dashes.size(), 2u);
}

TEST(LinetypeFile, ReadsItsEncodings) {
    const std::string line = "*\xE7\xBA\xBF,\xE5\x9E\x8B\nA,1,-1";
    const std::string in936 = "*\xCF\xDF,\xD0\xCD\nA,1,-1";
    for (const LinetypeFile& file :
         {ReadLinetypeFile("\xEF\xBB\xBF" + line, kWestern), read(line), ReadLinetypeFile(in936, kChinese)}) {
        ASSERT_EQ(file.definitions.size(), 1u);
        EXPECT_EQ(file.definitions[0].name, L"\x7EBF");
        EXPECT_EQ(file.definitions[0].description, L"\x578B");
    }
}

TEST(LinetypeFile, NumbersHaveManyForms) {
    const LinetypeFile file = read("*X\nA,+1,-.5,1e1,-2.,0\n");
    ASSERT_EQ(file.definitions.size(), 1u);
    EXPECT_EQ(file.definitions[0].dashes, (std::vector<double>{1, -0.5, 10, -2, 0}));
}

TEST(LinetypeFile, KeepsShapesAndTextsAsTheyStand) {
    const LinetypeFile file = read(
        "*GAS,Gas ---GAS---\nA,.5,-.2,[\"GAS]\",STANDARD,S=.1,R=0.0,X=-0.1,Y=-.05],-.25\n"
        "*RAIL\nA,1,[TRACK,rail.shx,S=.25],1\n");
    EXPECT_TRUE(file.problems.empty());
    ASSERT_EQ(file.definitions.size(), 2u);
    EXPECT_TRUE(file.definitions[0].isComplex() && file.definitions[1].isComplex());
    ASSERT_EQ(file.definitions[0].inserts.size(), 1u);
    EXPECT_EQ(file.definitions[0].inserts[0].behind, 2);
    EXPECT_EQ(file.definitions[0].inserts[0].text, L"\"GAS]\",STANDARD,S=.1,R=0.0,X=-0.1,Y=-.05");
    EXPECT_EQ(file.definitions[0].dashes, (std::vector<double>{0.5, -0.2, -0.25}));
    EXPECT_EQ(file.definitions[1].inserts[0].behind, 1);
}

TEST(LinetypeFile, TellsWhatIsWrongWithADefinition) {
    EXPECT_EQ(faultOf(""), LinetypeFault::kNoPattern);
    EXPECT_EQ(faultOf("B,1,-1"), LinetypeFault::kBadAlignment);
    EXPECT_EQ(faultOf("1,-1"), LinetypeFault::kBadAlignment);
    EXPECT_EQ(faultOf("A"), LinetypeFault::kTooFewDashes);
    EXPECT_EQ(faultOf("A,"), LinetypeFault::kTooFewDashes);
    EXPECT_EQ(faultOf("A,1"), LinetypeFault::kTooFewDashes);
    EXPECT_EQ(faultOf("A,-1,1"), LinetypeFault::kBeginsWithGap);
    EXPECT_EQ(faultOf("A,0,0"), LinetypeFault::kNoLength);
    EXPECT_EQ(faultOf("A,1,,-1"), LinetypeFault::kBadNumber);
    for (const char* number : {"x", "1x", "1 2", "0x10", "nan", "inf", "1e999", "1e10", "+-1", "--1", "\xE9"})
        EXPECT_EQ(faultOf(std::string("A,1,") + number), LinetypeFault::kBadNumber) << number;
    EXPECT_EQ(faultOf("A,1,[\"GAS]"), LinetypeFault::kOpenBracket);
    EXPECT_EQ(faultOf("A,1,[GAS"), LinetypeFault::kOpenBracket);
    EXPECT_EQ(faultOf("A,1,[GAS]x,-1"), LinetypeFault::kBadNumber);
    EXPECT_EQ(faultOf("A,1,-1,1,-1,1,-1,1,-1,1,-1,1,-1,1"), LinetypeFault::kTooManyDashes);
    EXPECT_EQ(problemOf("*,nameless\nA,1,-1").fault, LinetypeFault::kNoName);
    EXPECT_EQ(problemOf("A,1,-1").fault, LinetypeFault::kStrayLine);
    for (const char* name : {"SITE|FENCE", "A*B", "A/B", "A\x01Z", "A\\B", "A:B", "A?"})
        EXPECT_EQ(problemOf(std::string("*") + name + ",x\nA,1,-1").fault, LinetypeFault::kBadName) << name;
    EXPECT_EQ(problemOf("*" + std::string(256, 'n') + "\nA,1,-1").fault, LinetypeFault::kBadName);
}

TEST(LinetypeFile, TellsWhere) {
    const LinetypeFile file = read("; c\n*A1\nA,1,oops\n*B1\n*C1\nA,1,-1\nstray\n*c1\nA,2,-2\n*D1\nA,2,-2\n");
    ASSERT_EQ(file.definitions.size(), 2u) << "what is right is there all the same";
    EXPECT_EQ(file.definitions[0].name, L"C1");
    EXPECT_EQ(file.definitions[1].name, L"D1");
    ASSERT_EQ(file.problems.size(), 4u);
    const LinetypeFileProblem expected[] = {{LinetypeFault::kBadNumber, 3, L"oops"},
                                            {LinetypeFault::kNoPattern, 4, L"B1"},
                                            {LinetypeFault::kStrayLine, 7, L""},
                                            {LinetypeFault::kNameTwice, 8, L"c1"}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(file.problems[i].fault, expected[i].fault) << i;
        EXPECT_EQ(file.problems[i].line, expected[i].line) << i;
        EXPECT_EQ(file.problems[i].detail, expected[i].detail) << i;
    }
}

TEST(LinetypeFile, TwelveDashesAreAllowed) {
    const LinetypeFile file = read("*X\nA,1,-1,1,-1,1,-1,1,-1,1,-1,1,-1\n");
    ASSERT_EQ(file.definitions.size(), 1u);
    EXPECT_EQ(file.definitions[0].dashes.size(), static_cast<std::size_t>(kMostDashes));
}

TEST(LinetypeFile, AnEmptyFileDefinesNothing) {
    for (const char* text : {"", "\n\n", "; only a comment", "\xEF\xBB\xBF", "\x1A"}) {
        EXPECT_TRUE(read(text).definitions.empty());
        EXPECT_TRUE(read(text).problems.empty());
    }
}

TEST(LinetypeFile, CutAnywhereItGivesWhatIsWholeAndNothingElse) {
    const std::string whole =
        ";; c\r\n*A1,one\r\nA,1,-1,[\"T\",STANDARD,S=.1],-1\r\n*B1,two\r\nA,2,-2,0,-2\r\n";
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const LinetypeFile file = read(whole.substr(0, size));
        EXPECT_LE(file.definitions.size(), 2u);
        EXPECT_LE(file.problems.size(), 1u);
    }
}

TEST(LinetypeFile, StopsAtItsLimits) {
    std::string many, stray;
    for (std::size_t i = 0; i <= 10000; ++i) many += "*N" + std::to_string(i) + "\nA,1,-1\n";
    const LinetypeFile file = read(many);
    EXPECT_EQ(file.definitions.size(), 10000u);
    ASSERT_EQ(file.problems.size(), 1u);
    EXPECT_EQ(file.problems[0].fault, LinetypeFault::kTooManyLinetypes);
    for (std::size_t i = 0; i < 2000u; ++i) stray += "x\n";
    EXPECT_EQ(read(stray).problems.size(), 1000u);
}
