#pragma once

#include "orders/SheetWindow.h"
#include "qt/SheetWidget.h"

#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace Orders {

/// A clerk at the window of orders, who has a keyboard and no mouse.
class Clerk : public testing::Test {
protected:
    Clerk();
    ~Clerk() override;

    void Open(int count = 40); ///< The window of orders in front, with so many.
    /// A window in front with what a query gives of a database that the statements make, on that connection.
    void OpenRows(const char* statements, const std::string& query);
    void OpenRows(const char* statements, const std::string& query, const std::string& connection);
    void GoTo(int row, int col); ///< Enters that cell.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void Type(const QString& text);
    /// What is done in the next box as soon as it is up. A box that nobody expects would never end.
    void InNextBox(std::function<void(QWidget&)> action);
    void AnswerNextBox(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    [[nodiscard]] Tessellon::SheetWidget& Sheet() const { return window_->Sheet(); }
    [[nodiscard]] SheetWindow& Window() const { return *window_; }
    [[nodiscard]] int Orders() const { return Sheet().Rows() - 1; }
    /// Row, column and text of the cell whose text box has the focus; empty where none has.
    [[nodiscard]] std::string Edited() const;
    [[nodiscard]] bool IsInFindBar() const;
    [[nodiscard]] std::string Message() const; ///< In the status line, while it lasts.
    [[nodiscard]] std::string Summary() const; ///< In the status line, when it is worked out.
    [[nodiscard]] const std::filesystem::path& Database() const { return path_; }
    void InDatabase(const char* statements) const; ///< What another program does.
    int Boxes = 0;

private:
    void Show(std::unique_ptr<SheetWindow> window, const Source& source);

    std::filesystem::path folder_;
    std::filesystem::path path_;
    std::unique_ptr<SheetWindow> window_;
};

} // namespace Orders
