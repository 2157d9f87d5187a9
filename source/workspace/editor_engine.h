// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The part of the engine that the Math Editor talks to. ParserEngine is the real one; tests
// put a scripted engine in its place to drive paths, such as declarations, that the text
// decides before the engine is asked.

#include <string>

namespace quindar {

class Parser;

class EditorEngine {
public:
    virtual ~EditorEngine() = default;

    // Evaluates one statement; the answer text (" = 5"), empty after a declaration or a
    // failure. The text lives until the next call.
    virtual const char *eval_exp(const char *statement, bool silent, bool showEquals) = 0;
    virtual bool IsAnError() const = 0;
    virtual void ClearLastError() = 0;
    virtual bool is_variable(const std::string &name) const = 0;
    // Set by the latest eval_exp when it assigned or declared a variable, or declared a
    // function.
    virtual bool assignment_made() const = 0;
    virtual bool function_declared() const = 0;
};

class ParserEngine : public EditorEngine {
public:
    explicit ParserEngine(Parser &engine) : parser(engine) {}

    const char *eval_exp(const char *statement, bool silent, bool showEquals) override;
    bool IsAnError() const override;
    void ClearLastError() override;
    bool is_variable(const std::string &name) const override;
    bool assignment_made() const override;
    bool function_declared() const override;

private:
    Parser &parser;
};

}  // namespace quindar
