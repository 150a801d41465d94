#pragma once

#include "columns/ColDataType.h"
#include "data/ManipulateType.h"
#include "platform/Recordset.h"
#include "view/ColorType.h"

#include <QDateTime>
#include <QFont>
#include <QString>
#include <QWidget>

#include <memory>
#include <utility>

class QSqlQuery;

namespace Tessellon {

class SheetFrame;
class TessellonSheet;

/// A data-entry sheet that a host drops on a form: rows and columns in a grid, an editor of the column's kind over the
/// current cell. It is one tab stop. Several in one window work side by side.
///
/// Rows and columns of data count from 1, sizes are twips: 15 to the pixel at 96 dots an inch. A bad argument is
/// ignored without a word, a read out of range gives the empty value. A failure inside the sheet is told by ErrInfo
/// and, while ShowErrMessage is True, by a message box. The widget may be deleted inside any of its signals.
///
/// Signals with arguments by reference want direct connections: what the slot writes there is the answer.
class SheetWidget : public QWidget {
    Q_OBJECT
    /// Whether the grid takes keys and presses. Disabling the widget disables it too.
    Q_PROPERTY(bool enabled READ Enabled WRITE Enabled)
    /// Whether calls like Add may bring the focus into the sheet while it is elsewhere in the window. A host whose user
    /// types elsewhere while it loads or moves the sheet says no.
    Q_PROPERTY(bool grabsFocus READ grabsFocus WRITE setGrabsFocus)

public:
    explicit SheetWidget(QWidget* parent = nullptr);
    ~SheetWidget() override;

    [[nodiscard]] bool grabsFocus() const;
    void setGrabsFocus(bool grabs);
    [[nodiscard]] QSize sizeHint() const override;

    // Cells and cursor.
    int Row();
    void Row(int row); ///< Goes there, in the current column; the row marker follows.
    int Rows(); ///< Heading included.
    int Col();
    void Col(int col);
    int hWnd(); ///< Handle of the native window in which the sheet is.
    QString TextMatrix(int row, int col);
    void TextMatrix(int row, int col, const QString& text);
    /// Height of all data rows, above 0; with scaleFont the fonts follow, with includeHeader the heading.
    void RowHeight(float height, bool scaleFont, bool includeHeader);
    float GetRowHeight(int row); ///< What data rows are made with; 0 for a row that is none.
    bool AllowAddNew();
    void AllowAddNew(bool allow);
    void DateFormat(const QString& format); ///< For date columns and the date editor; blanks only: ignored.

    // Columns.
    int Cols(); ///< Marker column included.
    void Cols(int count); ///< Data columns plus one; not above 0: ignored.
    void ColWidth(int col, float width);
    /// Declares data column `col`; BuildGridColumns brings it to the grid.
    void CreateColumnDataType(int col, const QString& colName, FieldControlType controlType,
                              const QString& controlSettingString, bool hide, FieldControlAlign alignment,
                              int fieldLength, FieldAutoAdjustType autoAdjust, bool useMask);
    QString ColumnHeader(int col);
    void BuildGridColumns(); ///< Empties all data cells, keeps the number of rows.

    /// Colour of the even (0) or odd (1) rows. A failure goes to the host, as an exception of type Failure.
    void BackColor(int index, ColorType color);

    // Failures.
    bool RaiseError();
    void RaiseError(bool raise);
    bool ShowErrMessage();
    void ShowErrMessage(bool show);

    // Rows and data.
    int SearchCol(int col, const QString& search); ///< The row gone to; 0 if none.
    void Add(int row, int count = 1); ///< Empty rows behind `row`.
    void Delete(int row);
    void Clear(); ///< Back to the empty sheet, columns included.
    QString Minimum(int col, ManipulateType dataType, bool& success);
    QString Maximum(int col, ManipulateType dataType, bool& success);
    double Summation(int col, bool& success);
    /// Fills the sheet: a row for each record, a cell for each field. The connection tells what went wrong; without one
    /// a failure goes to the host, as an exception of type Failure. A load of more than a second tells loadProgress.
    void DataSource(std::shared_ptr<Recordset> recordset, std::shared_ptr<Connection> connection);
    /// The same from a query that was executed, which is taken over: DataSource(std::move(query)). What went wrong with
    /// it, the executing included, is told by ErrInfo. QtSqlRecordset says how a query is read; for many records
    /// setForwardOnly(true) ahead of exec.
    void DataSource(QSqlQuery query);

    // Design-time properties. Font is QWidget's own: setFont does the same.
    QFont Font();
    void Font(const QFont& font);
    bool Enabled();
    void Enabled(bool enabled);

signals:
    void Compare(int Row1, int Row2, short& Cmp);
    void AdvanceToNextCell(bool& Cancel);
    void ExitFocus(bool& Cancel);
    void MouseDown(short& Button, short& Shift, float& x, float& y);
    void MouseMove(short& Button, short& Shift, float& x, float& y);
    void MouseUp(short& Button, short& Shift, float& x, float& y);
    void Click();
    void DblClick();
    void KeyUp(short& KeyCode, short& Shift);
    void KeyDown(short& KeyCode, short& Shift);
    void KeyPress(short& KeyAscii);
    void RowColChange();
    void Scroll();
    void SelChange();
    void LeaveCell();
    void EnterCell();
    void EditorValidate(bool& Cancel);
    void EditorChange();
    void DateBoxCloseUp();
    void DateBoxDropDown();
    void Format(QString& CallbackField, QString& FormattedString);
    void DatePickerCallbackKeyDown(short KeyCode, short Shift, const QString& CallbackField, QDateTime& CallbackDate);
    void ButtonClick(short ButtonIndex);
    void UseAdvanceToNextCell(bool& Use);
    /// The description comes as ErrSource, the source as ErrDesc.
    void ErrInfo(int ErrNum, const QString& ErrSource, const QString& ErrDesc, const QString& ErrHelpFile,
                 const QString& ErrHelpContext);

    /// How far a load has come that takes more than a second, at most ten times a second: the rows that are filled, 0
    /// while the records are still counted, and the records that are counted so far. The load ends as DataSource
    /// returns. Behind the slots the window is painted as it is due; what the user does meanwhile waits for the end of
    /// the load, and so do timers.
    void loadProgress(int rows, int records);

    /// What the user's key or mouse began has failed in a handler of the host's, and no call waits for it.
    void unhandledFailure(int number, const QString& source, const QString& description);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend struct SheetWidgetProbe;
    struct Parts;
    void ConnectEvents();
    template <class Call>
    auto Ask(const Call& call) -> decltype(call(std::declval<TessellonSheet&>()));

    std::unique_ptr<Parts> parts_;
};

} // namespace Tessellon
