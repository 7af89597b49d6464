// Base of every window of the program: load, resize and unload handlers, modal showing, guarded connections.
#pragma once

#include "platform/ui/FormHost.h"

#include <QMainWindow>

#include <type_traits>

class QEventLoop;

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
    void unload(); // Form_Unload, hide, and the registry drops the form once its handlers are done
    FormHost &host() const { return m_host; }

signals:
    void unloaded();

protected:
    // Handlers of the vocabulary; each runs inside the guard but Form_Load, whose failure is that of the first touch.
    virtual void Form_Load() {}
    virtual void Form_Resize() {} // at the first show, then once for every change of size by the user
    virtual void Form_Unload() {}
    virtual void Form_KeyDown(int key, Qt::KeyboardModifiers) { (void)key; } // Esc comes to Form_KeyPress
    virtual void Form_KeyPress(int character) { (void)character; }
    virtual void Form_DblClick() {}

    // Connects a signal to a handler of this form inside the guard:
    //   on(Command1, &QPushButton::clicked, this, &GeneraMenu::Command1_Click);
    template <class Sender, class Signal, class Self, class Handler>
    void on(Sender *sender, Signal signal, Self *self, Handler handler)
    {
        connect(sender, signal, self, [this, self, handler](auto &&...) {
            m_host.guarded([&] { std::invoke(handler, self); });
        });
    }
    // The same for a handler that takes the signal's arguments.
    template <class Sender, class Signal, class Self, class Handler>
    void onWith(Sender *sender, Signal signal, Self *self, Handler handler)
    {
        connect(sender, signal, self, [this, self, handler](auto &&...args) {
            m_host.guarded([&] { std::invoke(handler, self, args...); });
        });
    }

    bool event(QEvent *) override;
    void closeEvent(QCloseEvent *) override;
    void keyPressEvent(QKeyEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void showEvent(QShowEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;

private:
    void runResize();

    FormHost &m_host;
    QEventLoop *m_modalLoop = nullptr;
    bool m_loaded = false;
    bool m_unloading = false;
    bool m_inResize = false;
    bool m_resizePending = false;
};
