// A few lines of PDF that ask for much work.
#pragma once

#include <string>

/// Forms that each draw the next one ten times: a depth of 12 takes years to draw.
inline std::string nestedDocument(int depth)
{
    const auto stream = [](const std::string& entries, const std::string& content) {
        return "<<" + entries + "/Length " + std::to_string(content.size()) + ">>stream\n" + content + "\nendstream";
    };
    const std::string form = "/Type/XObject/Subtype/Form/BBox[0 0 72 72]";
    std::string tenTimes;
    for (int i = 0; i < 10; ++i)
        tenTimes += "/F Do ";
    std::string document = "%PDF-1.4\n1 0 obj <</Type/Catalog/Pages 2 0 R>> endobj\n"
                           "2 0 obj <</Type/Pages/Kids[3 0 R]/Count 1>> endobj\n"
                           "3 0 obj <</Type/Page/Parent 2 0 R/MediaBox[0 0 72 72]/Contents 4 0 R"
                           "/Resources<</XObject<</F 5 0 R>>>>>> endobj\n4 0 obj "
        + stream("", tenTimes) + " endobj\n";
    for (int i = 0; i < depth; ++i) {
        const bool isLast = i + 1 == depth;
        const std::string next = "/Resources<</XObject<</F " + std::to_string(6 + i) + " 0 R>>>>";
        document += std::to_string(5 + i) + " 0 obj "
            + stream(form + (isLast ? "" : next), isLast ? "0 0 3 3 re f" : tenTimes) + " endobj\n";
    }
    return document + "trailer<</Size " + std::to_string(5 + depth) + "/Root 1 0 R>>\n%%EOF\n";
}
