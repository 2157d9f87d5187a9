// SPDX-License-Identifier: GPL-3.0-or-later
// Helpers of the document tests: a work with every kind of content, and a loaded document
// with the messages its load showed.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document_file.h"

namespace quindar::testing {

// An engine, the rest of a work, and every box shown while they were filled.
struct Work {
    Parser parser{"", ""};
    DocumentContent content;
    std::vector<std::string> boxes;  // "caption: text", engine and document alike

    Work() {
        parser.set_message_hook(
            [this](std::string_view text, std::string_view caption, MessageStyle) {
                boxes.push_back(std::string(caption) + ": " + std::string(text));
                return true;
            });
    }

    // A document over this work whose boxes are recorded.
    std::unique_ptr<DocumentFile> file() {
        auto document = std::make_unique<DocumentFile>(parser, content);
        document->SetWarningHook([this](std::string_view text, std::string_view caption) {
            boxes.push_back(std::string(caption) + ": " + std::string(text));
        });
        return document;
    }

    bool save(const std::string &path) { return file()->Write(path.c_str()); }
    bool load(const std::string &path) { return file()->Read(path.c_str()); }

    void eval(const char *line) { parser.eval_exp(line, true, false); }

    std::string variable_text(const char *name) {
        const char *text = parser.get_var_str_value(name, 14, false);
        return text ? text : "<none>";
    }
};

inline std::string upper_copy(std::string text) {
    for (char &c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

// A work holding every kind of content a document stores.
inline void fill_full_work(Work &work) {
    work.content.text = "a + b\r\nf[2] = 5\r\n// a comment\r\n\r\nlast line";
    for (const char *line : {"a = 2", "b = 1/3", "c = 0, 10, 11", "z = 3-4i", "tiny = -0.000012345",
                             "huge = 1.5*10^200", "e2 = 2.7182818284590452", "neg = -7"})
        work.eval(line);
    work.parser.auto_declare = true;
    work.eval("unset");
    work.parser.auto_declare = false;
    work.eval("f[x] = x^2+1");
    work.eval("same[x,y] = x==y");
    work.eval("h[t] = a*t+c");

    work.parser.answer_format->precision = 10;
    work.parser.answer_format->zero_precision = 1e-10f;
    work.parser.answer_format->show_lead_sign = true;
    work.parser.variable_format->show_decimal_point = true;
    work.parser.angle_mode = 1;

    work.content.font.FaceName = "Courier New";
    work.content.font.Height = -16;
    work.content.font.Italic = 1;
    work.content.font.Color = TColor(10, 20, 30);
    work.content.integration.IntFunc = "f[x]";
    work.content.integration.IntXParam = "x";
    work.content.integration.IntXLoLimit = "0";
    work.content.integration.IntXHiLimit = "pi";
    work.content.integration.IntAccuracy = 12;
    work.content.differentiation.DiffFunc = "g[x]=x==1";
    work.content.differentiation.DiffDispThirdDir = 0;

    GraphList &graphs = work.content.graphs;
    GraphData *plot = graphs.add();
    plot->SetName("Plot of f");
    plot->AddFunction("f[x]", "old body")->SetFuncLabel("parabola");
    plot->AddFunction("gone[x]", "x/2");  // no longer in the engine
    const Variable x("x", complex{-5, 0}, complex{5, 0}, 11);
    plot->SetXAxisVar(&x);
    plot->SetYAxisTitle("height");
    plot->GraphType2D = 13;
    plot->XAxisLogarithmic = 1;
    plot->MarginLeft2D = 4;
    plot->DataAreaForegroundColor = TColor(1, 2, 3);
    StrDataPnts *measured = plot->DataSets.add();
    measured->SetName("measured");
    measured->SetLabel("lab data");
    measured->PutXDataPoint("1", 0);
    measured->PutYDataPoint("a*2", 0);
    measured->PutXDataPoint("2.5", 2);
    measured->PutYDataPoint("sqrt[2]", 2);
    measured->PutYDataPoint("7", 3);
    StrDataPnts *empty = plot->DataSets.add();
    empty->SetName("empty");

    GraphData *surface = graphs.add();
    surface->SetName("Surface");
    surface->AddFunction("same[x,y]", "x==y");
    const Variable sx("x", complex{0, 0}, complex{1, 0}, 5);
    const Variable sy("y", complex{-1, 0}, complex{1, 0}, 7);
    surface->SetXAxisVar(&sx);
    surface->SetZAxisVar(&sy);
    surface->Set3DTypeBit(7, 1);
    surface->Set3DTypeBit(2, 0);
    surface->YRotation = 12.5f;
    surface->Scale = 2.25f;
    surface->SurfaceTopColor = TColor(200, 100, 50);
    surface->SetHeader("");
    surface->SetFooter("");

    GraphData *cloud = graphs.add();
    cloud->SetName("Cloud");
    StrDataPnts *row = cloud->DataSets.add();
    row->SetName("row");
    row->PutXDataPoint("1", 0);
    row->PutYDataPoint("2", 0);
    row->PutZDataPoint("c+1");

    graphs.add()->SetName("Nothing yet");
    work.content.currentGraph = plot;
}

}  // namespace quindar::testing
