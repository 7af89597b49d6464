#include "platform/ui/Form.h"
#include "platform/ui/ControlArray.h"
#include "platform/ui/FormRegistry.h"
#include "platform/ui/SchermoQt.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>
#include <QVBoxLayout>
#include <QWindow>

namespace {

QStringList s_told; // failures that reached the report

class Probe : public Form
{
public:
    explicit Probe(FormHost &host, const QString &name = QStringLiteral("Probe")) : Form(name, host)
    {
        auto *ground = new QWidget(this);
        auto *layout = new QVBoxLayout(ground);
        for (QWidget *widget : std::initializer_list<QWidget *>{line, button, combo})
            layout->addWidget(widget);
        layout->addStretch();
        setCentralWidget(ground);
        on(button, &QPushButton::clicked, this, &Probe::button_Click);
        onWith(line, &QLineEdit::textEdited, this, &Probe::line_Change);
    }
    ~Probe() override { events << QStringLiteral("gone"); }

    QLineEdit *line = new QLineEdit;
    QPushButton *button = new QPushButton(QStringLiteral("Conferma"));
    QComboBox *combo = new QComboBox;
    std::function<void()> atLoad, atStep, atResize, atUnload, atClick;
    static inline QStringList events;

protected:
    void resizeEvent(QResizeEvent *event) override // a step of the window system, before it has become a resize
    {
        Form::resizeEvent(event);
        if (atStep)
            atStep();
    }
    void Form_Load() override { happen("load", atLoad); }
    void Form_Resize() override { happen("resize", atResize); }
    void Form_Unload() override { happen("unload", atUnload); }
    void Form_KeyDown(int key, Qt::KeyboardModifiers) override { events << QStringLiteral("key %1").arg(key); }
    void Form_KeyPress(int character) override { events << QStringLiteral("press %1").arg(character); }
    void Form_DblClick() override { events << QStringLiteral("dblclick"); }

private:
    void button_Click() { happen("click", atClick); }
    void line_Change(const QString &text) { events << QStringLiteral("text ") + text; }
    static void happen(const char *what, const std::function<void()> &also)
    {
        events << QLatin1String(what);
        if (also)
            also();
    }
};

class FormTest : public testing::Test
{
protected:
    FormTest()
    {
        Probe::events.clear();
        s_told.clear();
        host.report = [](const Failure &failure) { s_told << failure.words(); };
    }

    // Does something once the event loop, at whatever depth, comes to it.
    static void soon(std::function<void()> what) { QTimer::singleShot(0, std::move(what)); }
    // Lets everything that waits in the event loop happen, deletions too.
    static void settle() { QTest::qWait(0); }
    static bool resizeEnds(const Form &form)
    {
        settle(); // what the window system has sent
        return QTest::qWaitFor([&] { return !form.isResizePending(); }, 60'000);
    }

    FormHost host;
};

TEST_F(FormTest, ModalShowingLoadsResizesOnceAndReturnsAtUnload)
{
    Probe form(host);
    soon([&] { form.unload(); });
    form.showModal();
    EXPECT_EQ(Probe::events, QStringList({"load", "resize", "unload"}));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormTest, MarksInALabelAreNoMarkup)
{
    Probe form(host);
    auto *label = new QLabel("<b>Ondira</b>", form.centralWidget());
    form.showModeless();
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(FormTest, ModalShowingReturnsAtHideAndALaterShowDoesNotLoadAgain)
{
    Probe form(host);
    soon([&] { form.hide(); });
    form.showModal();
    soon([&] { form.hide(); });
    form.showModal();
    EXPECT_EQ(Probe::events, QStringList({"load", "resize"}));
}

TEST_F(FormTest, ModalShowingOfAShownFormIsIgnored)
{
    Probe form(host);
    bool returned = false;
    soon([&] {
        form.showModal();
        returned = true;
        form.unload();
    });
    form.showModal();
    EXPECT_TRUE(returned);
}

TEST_F(FormTest, ClosingByTheWindowSystemUnloads)
{
    Probe form(host);
    soon([&] { form.windowHandle()->close(); });
    form.showModal();
    EXPECT_EQ(Probe::events, QStringList({"load", "resize", "unload"}));
}

TEST_F(FormTest, AFormHiddenByItsOwnResizeReturnsAtOnce)
{
    Probe form(host);
    form.atResize = [&] { form.unload(); };
    form.showModal();
    EXPECT_EQ(Probe::events, QStringList({"load", "resize", "unload"}));
}

TEST_F(FormTest, EachChangeOfSizeByTheUserIsOneResize)
{
    Probe form(host);
    form.showModeless();
    EXPECT_EQ(Probe::events.count("resize"), 1);
    form.windowHandle()->resize(500, 400);
    EXPECT_TRUE(resizeEnds(form));
    EXPECT_EQ(Probe::events.count("resize"), 2);
    int steps = 0; // of one dragging
    form.atStep = [&] {
        if (++steps == 1)
            form.windowHandle()->resize(520, 400);
    };
    form.windowHandle()->resize(510, 400);
    EXPECT_TRUE(resizeEnds(form));
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(Probe::events.count("resize"), 3);
}

TEST_F(FormTest, ChangesOfSizeByCodeAreNoResize)
{
    Probe form(host);
    form.showModeless();
    form.resize(640, 480);
    form.setMinimumWidth(700);
    EXPECT_TRUE(resizeEnds(form));
    EXPECT_EQ(form.width(), 700);
    EXPECT_EQ(Probe::events.count("resize"), 1);
}

TEST_F(FormTest, AHiddenFormIsNotResized)
{
    Probe form(host);
    form.showModeless();
    form.atStep = [&] { form.hide(); };
    form.windowHandle()->resize(500, 400);
    EXPECT_TRUE(resizeEnds(form));
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Probe::events.count("resize"), 1);
}

TEST_F(FormTest, ResizeIsNotReentered)
{
    Probe form(host);
    int depth = 0, deepest = 0;
    form.atResize = [&] {
        deepest = std::max(deepest, ++depth);
        if (Probe::events.count("resize") == 1) {
            form.windowHandle()->resize(500, 400);
            QTest::qWait(150); // for longer than a resize takes to come
        }
        --depth;
    };
    form.showModeless();
    EXPECT_TRUE(resizeEnds(form));
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(Probe::events.count("resize"), 2);
}

TEST_F(FormTest, AFailureInAHandlerIsToldAndTheFormLivesOn)
{
    Probe form(host);
    form.atClick = [] { throw Failure(FailureNumber::TypeMismatch, "Tipo non corrispondente"); };
    form.showModeless();
    QTest::mouseClick(form.button, Qt::LeftButton);
    form.atClick = [] { throw std::out_of_range("map::at"); };
    QTest::mouseClick(form.button, Qt::LeftButton);
    EXPECT_EQ(s_told, QStringList({"Tipo non corrispondente", "map::at"}));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(FormTest, AHandlerTakesTheArgumentsOfItsSignal)
{
    Probe form(host);
    form.showModeless();
    form.line->setFocus();
    QTest::keyClick(form.line, Qt::Key_A);
    EXPECT_TRUE(Probe::events.contains("text a"));
}

TEST_F(FormTest, TheEndOfTheProgramUnwindsThroughNestedModalForms)
{
    Probe outer(host, "Outer");
    Probe inner(host, "Inner");
    QStringList unwound;
    outer.atClick = [&] {
        try {
            inner.showModal();
        } catch (const ProgramEnd &) {
            unwound << "inner";
            throw;
        }
        unwound << "went on";
    };
    inner.atClick = [] { throw ProgramEnd(); };
    soon([&] {
        soon([&] { QTest::mouseClick(inner.button, Qt::LeftButton); });
        QTest::mouseClick(outer.button, Qt::LeftButton);
    });
    EXPECT_THROW(outer.showModal(), ProgramEnd);
    EXPECT_EQ(unwound, QStringList({"inner"}));
    EXPECT_TRUE(host.ending());
    EXPECT_EQ(s_told, QStringList());
    EXPECT_FALSE(inner.isVisible());
}

TEST_F(FormTest, AfterTheEndNoHandlerRunsAndNoLoopStarts)
{
    host.guarded([] { throw ProgramEnd(); });
    bool ran = false;
    host.guarded([&] { ran = true; });
    EXPECT_FALSE(ran);
    QEventLoop loop;
    EXPECT_THROW(host.runLoop(loop), ProgramEnd);
}

TEST_F(FormTest, AReportThatFailsItselfLetsTheProgramLive)
{
    host.report = [](const Failure &) { throw Failure(FailureNumber::PathAccess, "il giornale è pieno"); };
    host.guarded([] { throw Failure(FailureNumber::TypeMismatch, "prima"); });
    EXPECT_FALSE(host.ending());
    host.report = [](const Failure &) { throw ProgramEnd(); };
    host.guarded([] { throw Failure(FailureNumber::TypeMismatch, "seconda"); });
    EXPECT_TRUE(host.ending());
}

TEST_F(FormTest, EscComesToTheFormFromWhateverControlHasTheFocus)
{
    Probe form(host);
    form.showModeless();
    for (QWidget *widget : std::initializer_list<QWidget *>{form.line, form.button, form.combo}) {
        Probe::events.clear();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Escape);
        EXPECT_EQ(Probe::events, QStringList({"press 27"})) << qPrintable(widget->metaObject()->className());
    }
}

TEST_F(FormTest, OtherKeysComeToTheFormOnceAndToTheControlToo)
{
    Probe form(host);
    form.showModeless();
    form.line->installEventFilter(&form); // as forms do that look at a control's mouse
    form.line->setFocus();
    Probe::events.clear();
    QTest::keyClick(form.line, Qt::Key_F12);
    EXPECT_EQ(Probe::events, QStringList({QStringLiteral("key %1").arg(int(Qt::Key_F12))}));
    QTest::keyClick(form.line, Qt::Key_B);
    EXPECT_EQ(form.line->text(), "b");
}

TEST_F(FormTest, AnOpenListKeepsItsKeys)
{
    Probe form(host);
    form.combo->addItems({"uno", "due"});
    form.showModeless();
    Probe::events.clear();
    form.combo->showPopup();
    QTest::keyClick(form.combo->view(), Qt::Key_Escape);
    EXPECT_EQ(Probe::events, QStringList());
    EXPECT_FALSE(form.combo->view()->isVisible());
}

TEST_F(FormTest, EnterPressesTheDefaultButtonOrTheFocusedOne)
{
    Probe form(host);
    form.button->setDefault(true);
    form.showModeless();
    form.line->setFocus();
    QTest::keyClick(form.line, Qt::Key_Return);
    EXPECT_EQ(Probe::events.count("click"), 1);
    form.button->setDefault(false);
    QTest::keyClick(form.line, Qt::Key_Return);
    EXPECT_EQ(Probe::events.count("click"), 1);
    form.button->setFocus();
    QTest::keyClick(form.button, Qt::Key_Return);
    EXPECT_EQ(Probe::events.count("click"), 2);
}

TEST_F(FormTest, DoubleClickOnTheGroundIsTheFormsButNotOnAControl)
{
    Probe form(host);
    form.resize(300, 400);
    form.showModeless();
    QTest::mouseDClick(form.centralWidget(), Qt::LeftButton, {}, QPoint(150, 390));
    EXPECT_EQ(Probe::events.count("dblclick"), 1);
    form.button->setEnabled(false);
    QTest::mouseDClick(form.button, Qt::LeftButton);
    EXPECT_EQ(Probe::events.count("dblclick"), 1);
}

class RegistryTest : public FormTest
{
protected:
    RegistryTest()
    {
        forms.setFactory<Probe>([this] {
            auto form = std::make_unique<Probe>(host);
            if (failing)
                form->atLoad = [] { throw Failure(FailureNumber::NoCurrentRow, "nessun record"); };
            return form;
        });
    }

    FormRegistry forms;
    bool failing = false;
};

TEST_F(RegistryTest, TheFirstTouchLoadsAndLaterOnesDoNot)
{
    EXPECT_FALSE(forms.isLoaded<Probe>());
    Probe &form = forms.get<Probe>();
    EXPECT_EQ(&forms.get<Probe>(), &form);
    EXPECT_EQ(Probe::events, QStringList({"load"}));
    EXPECT_TRUE(forms.isLoaded<Probe>());
}

TEST_F(RegistryTest, AFailingLoadDropsTheFormAndThrows)
{
    failing = true;
    EXPECT_THROW(forms.get<Probe>(), Failure);
    EXPECT_FALSE(forms.isLoaded<Probe>());
    failing = false;
    forms.get<Probe>();
    EXPECT_EQ(Probe::events, QStringList({"load", "load"}));
}

TEST_F(RegistryTest, AnUnloadedFormIsDroppedOnlyWhenItsHandlersAreDone)
{
    Probe &form = forms.get<Probe>();
    form.atClick = [&] {
        form.unload();
        settle();
        EXPECT_FALSE(forms.isLoaded<Probe>());
        EXPECT_FALSE(Probe::events.contains("gone"));
    };
    soon([&] { QTest::mouseClick(form.button, Qt::LeftButton); });
    form.showModal();
    EXPECT_FALSE(Probe::events.contains("gone")); // the caller may still look at it
    settle();
    forms.dropAll();
    EXPECT_EQ(Probe::events.count("gone"), 1);
}

TEST_F(RegistryTest, AnUnloadedFormIsMadeAnewAtTheNextTouch)
{
    forms.get<Probe>().unload();
    forms.get<Probe>();
    EXPECT_EQ(Probe::events.count("load"), 2);
}

TEST_F(RegistryTest, DroppingAllDeletesWithoutUnloading)
{
    forms.get<Probe>().showModeless();
    forms.dropAll();
    EXPECT_EQ(Probe::events, QStringList({"load", "resize", "gone"}));
}

TEST(ControlArrayTest, ElementsAreFoundByIndexAndOthersLeftOut)
{
    QWidget form;
    for (const char *name : {"TxtFields_0", "TxtFields_10", "TxtFields_x", "TxtFields", "Other_1"})
        (new QLineEdit(&form))->setObjectName(name);
    const ControlArray<QLineEdit> boxes(&form, "TxtFields");
    EXPECT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[10]->objectName(), "TxtFields_10");
    EXPECT_THROW(boxes[1], std::out_of_range);
}

TEST(SchermoQtTest, BreathingPaintsButKeepsTheUserOutAndNoticesEsc)
{
    FormHost host;
    Probe form(host);
    form.showModeless();
    Probe::events.clear();
    SchermoQt screen;
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &form, [&] { ++ticks; });
    timer.start(1);
    QTimer::singleShot(20, &form, [&] {
        QTest::mouseClick(form.button, Qt::LeftButton);
        QTest::keyClick(form.line, Qt::Key_Escape);
    });
    bool sawEscape = false;
    QElapsedTimer elapsed;
    elapsed.start();
    while (!sawEscape && elapsed.elapsed() < 5000)
        sawEscape = screen.breathe();
    EXPECT_TRUE(sawEscape);
    EXPECT_GT(ticks, 0);
    EXPECT_EQ(Probe::events, QStringList()); // neither the click nor the key came through
    EXPECT_FALSE(screen.breathe());
}

TEST(SchermoQtTest, ThePointerIsOneForTheScreenAndNoStack)
{
    SchermoQt screen;
    screen.setMousePointer(MousePointer::Hourglass);
    screen.setMousePointer(MousePointer::Hourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    {
        const PointerPause pause;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    screen.setMousePointer(MousePointer::Default);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
