// Base of every window of the program: load, resize and unload handlers, modal showing, guarded connections.
//
// A form made in Designer (root class QMainWindow) holds its Ui class and fills itself in the constructor:
//
//   GeneraMenu::GeneraMenu(FormHost &host, ModNetServer &modulo) : Form("GeneraMenu", host), m_modulo(modulo)
//   {
//       ui.setupUi(this);
//       on(ui.Command1, &QPushButton::clicked, this, &GeneraMenu::Command1_Click);
//   }
//
// Grids, data combos and panelled status bars stand in the .ui file as promoted widgets: base class QTableView,
// QComboBox or QStatusBar, header "platform/ui/DataGrid.h" and so on.
#pragma once

#include "platform/ui/FormHost.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>

class Form : public QMainWindow
{
    Q_OBJECT

public:
    // `name` is the form's name in the program's vocabulary and its objectName.
    Form(const QString &name, FormHost &host);
    ~Form() override;

    QString name() const { return objectName(); }
    void load();      // runs Form_Load once; the registry calls it at the first touch of the form
    void showModal(); // returns when the form is hidden or unloaded; ignored where it is already shown
    void showModeless();
    void unload();                                  // Form_Unload, hide, and the registry drops the form
    bool isUnloaded() const { return m_unloading; } // the object lives on only until its handlers are done
    bool isResizePending() const { return m_resizeTimer.isActive() && !m_inResize; }
    FormHost &host() const { return m_host; }
    // Deletes the form as soon as none of its handlers runs any more. For the registry, its owner until now.
    void deleteWhenIdle();

    // Runs Form_Resize at the first show, whoever shows the form.
    void setVisible(bool visible) override;

signals:
    void unloaded();

protected:
    // Handlers of the vocabulary; each runs inside the guard but Form_Load, whose failure is that of the first touch.
    virtual void Form_Load() {}
    virtual void Form_Resize() {} // at the first show, then once for every change of size by the user
    virtual void Form_Unload() {}
    // Keys come to the form before the control that has the focus gets them; Esc ends there.
    virtual void Form_KeyDown(int key, Qt::KeyboardModifiers) { (void)key; }
    virtual void Form_KeyPress(int character) { (void)character; } // kEscape, no other
    static constexpr int kEscape = 27;
    // Called from Form_KeyDown: the key has done its duty and goes on to no control.
    void swallowKey() { m_keySwallowed = true; }
    virtual void Form_DblClick() {} // on the form's ground, not on a control

    // Connects a signal to a handler of this form inside the guard:
    //   on(Command1, &QPushButton::clicked, this, &GeneraMenu::Command1_Click);
    template <class Sender, class Signal, class Self, class Handler>
    void on(Sender *sender, Signal signal, Self *self, Handler handler)
    {
        connect(sender, signal, self,
                [this, self, handler](auto &&...) { runHandler([&] { std::invoke(handler, self); }); });
    }
    // The same for a handler that takes the signal's arguments.
    template <class Sender, class Signal, class Self, class Handler>
    void onWith(Sender *sender, Signal signal, Self *self, Handler handler)
    {
        connect(sender, signal, self,
                [this, self, handler](auto &&...args) { runHandler([&] { std::invoke(handler, self, args...); }); });
    }
    // The same for handlers that are no members, those of a control array for instance.
    template <class Sender, class Signal>
    void onDo(Sender *sender, Signal signal, std::function<void()> handler)
    {
        connect(sender, signal, this, [this, handler = std::move(handler)](auto &&...) { runHandler(handler); });
    }
    // A handler has failed, and the user was told.
    virtual void handlerFailed(const Failure &failure) { (void)failure; }
    // Runs `handler` inside the guard; the form outlives it. Nothing runs on an unloaded form.
    void runHandler(const std::function<void()> &handler);

    bool event(QEvent *) override;
    void closeEvent(QCloseEvent *) override;
    void keyPressEvent(QKeyEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;

private:
    class Busy;
    class KeyPreview;

    void takeMarksAsText();
    void runResize();
    void deleteIfIdle();
    bool previewKey(QKeyEvent *key);

    FormHost &m_host;
    QEventLoop *m_modalLoop = nullptr;
    QTimer m_resizeTimer; // a window dragged to another size is one change, not one for each pixel
    int m_busy = 0;       // handlers and modal showings on the stack
    bool m_loaded = false;
    bool m_shown = false; // at least once
    bool m_unloading = false;
    bool m_dropped = false;
    bool m_inResize = false;
    bool m_keySwallowed = false;
};
