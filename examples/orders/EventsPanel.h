#pragma once

#include <QWidget>

class QLineEdit;
class QListView;

namespace Orders {

class EventLog;

/// The events as a list, and a field above it that leaves only the lines with all of its words. The list follows the
/// latest line until the user scrolls up.
class EventsPanel : public QWidget {
    Q_OBJECT

public:
    explicit EventsPanel(EventLog& log, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void FollowLatest();
    void FadeHint();

    QLineEdit* words_;
    QListView* list_;
    bool isAtEnd_ = true;
};

} // namespace Orders
