#include "Properties.h"

#include "Grids.h"
#include "platform/ui/EtichettaNome.h"
#include "platform/ui/Scritte.h"
#include "platform/ui/StatusPanels.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>
#include <QTextEdit>

#include <functional>
#include <map>
#include <optional>

namespace {

using Answer = std::optional<QJsonValue>;

QJsonValue texts(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

Answer textOf(const Target &target)
{
    if (target.action)
        return target.action->text();
    QWidget *const widget = target.widget;
    if (widget->isWindow())
        return widget->windowTitle();
    if (const auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    if (const auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->currentText();
    if (const auto *name = qobject_cast<EtichettaNome *>(widget))
        return name->scritta();
    if (const auto *label = qobject_cast<QLabel *>(widget))
        return label->buddy() ? Scritte::comeSiLegge(label->text()) : label->text();
    if (const auto *button = qobject_cast<QAbstractButton *>(widget))
        return Scritte::comeSiLegge(button->text());
    if (const auto *group = qobject_cast<QGroupBox *>(widget))
        return Scritte::comeSiLegge(group->title());
    if (const auto *edit = qobject_cast<QPlainTextEdit *>(widget))
        return edit->toPlainText();
    if (const auto *edit = qobject_cast<QTextEdit *>(widget))
        return edit->toPlainText();
    if (const auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
        return spin->text();
    if (qobject_cast<QFrame *>(widget))
        return QString(); // a frame or grid without a caption
    return std::nullopt;
}

Answer captionOf(const Target &target)
{
    if (target.widget && target.widget->property("caption").isValid())
        return target.widget->property("caption").toString();
    return textOf(target);
}

Answer visibleOf(const Target &target)
{
    if (target.action)
        return target.action->isVisible();
    if (target.widget->isWindow())
        return target.widget->isVisible();
    return target.widget->isVisibleTo(target.form);
}

Answer enabledOf(const Target &target)
{
    return target.action ? target.action->isEnabled() : target.widget->isEnabled();
}

Answer checkedOf(const Target &target)
{
    if (target.action)
        return target.action->isChecked();
    if (const auto *button = qobject_cast<QAbstractButton *>(target.widget))
        return button->isChecked();
    if (const auto *group = qobject_cast<QGroupBox *>(target.widget))
        return group->isChecked();
    return std::nullopt;
}

QStringList panelTexts(const StatusPanels &bar)
{
    QStringList all;
    for (int panel = 1; panel <= bar.panelCount(); ++panel)
        all << bar.panelText(panel);
    return all;
}

Answer itemsOf(const Target &target)
{
    QStringList all;
    if (const auto *combo = qobject_cast<QComboBox *>(target.widget)) {
        for (int i = 0; i < combo->count(); ++i)
            all << combo->itemText(i);
        return texts(all);
    }
    if (const auto *bar = qobject_cast<StatusPanels *>(target.widget))
        return texts(panelTexts(*bar));
    if (const auto *tabs = qobject_cast<QTabWidget *>(target.widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            all << tabs->tabText(i);
        return texts(all);
    }
    if (auto *view = qobject_cast<QAbstractItemView *>(target.widget))
        return texts(listTexts(*view));
    return std::nullopt;
}

Answer headersOf(const Target &target)
{
    if (const auto *view = qobject_cast<QTableView *>(target.widget))
        return texts(gridHeaders(*view));
    return std::nullopt;
}

Answer rowsOf(const Target &target)
{
    if (const auto *view = qobject_cast<QTableView *>(target.widget))
        return gridRows(*view);
    return std::nullopt;
}

Answer rowOf(const Target &target)
{
    if (const auto *combo = qobject_cast<QComboBox *>(target.widget))
        return combo->currentIndex() + 1;
    if (const auto *tabs = qobject_cast<QTabWidget *>(target.widget))
        return tabs->currentIndex() + 1;
    if (const auto *view = qobject_cast<QAbstractItemView *>(target.widget))
        return view->currentIndex().row() + 1;
    return std::nullopt;
}

Answer countOf(const Target &target)
{
    if (const auto *combo = qobject_cast<QComboBox *>(target.widget))
        return combo->count();
    if (const auto *bar = qobject_cast<StatusPanels *>(target.widget))
        return bar->panelCount();
    if (const auto *view = qobject_cast<QAbstractItemView *>(target.widget))
        return view->model() ? view->model()->rowCount(view->rootIndex()) : 0;
    return std::nullopt;
}

Answer tooltipOf(const Target &target)
{
    return target.action ? target.action->toolTip() : target.widget->toolTip();
}

Answer maxlengthOf(const Target &target)
{
    if (const auto *edit = qobject_cast<QLineEdit *>(target.widget))
        return edit->maxLength();
    if (const auto *combo = qobject_cast<QComboBox *>(target.widget); combo && combo->lineEdit())
        return combo->lineEdit()->maxLength();
    return std::nullopt;
}

Answer valueOf(const Target &target)
{
    if (const auto *bar = qobject_cast<QProgressBar *>(target.widget))
        return bar->value();
    if (const auto *slider = qobject_cast<QAbstractSlider *>(target.widget))
        return slider->value();
    if (const auto *spin = qobject_cast<QSpinBox *>(target.widget))
        return spin->value();
    return std::nullopt;
}

Answer backcolorOf(const Target &target)
{
    if (!target.widget)
        return std::nullopt;
    const bool isBox = qobject_cast<QLineEdit *>(target.widget) || qobject_cast<QAbstractScrollArea *>(target.widget);
    const QPalette::ColorRole role = isBox ? QPalette::Base : target.widget->backgroundRole();
    return target.widget->palette().color(role).name();
}

Answer widthOf(const Target &target)
{
    return target.widget ? Answer(target.widget->width()) : std::nullopt;
}

// Family and size, then what is not plain: "DejaVu Sans 11 bold".
Answer fontOf(const Target &target)
{
    const QFont font = target.action ? target.action->font() : target.widget->font();
    QString text = font.family() + ' ' + QString::number(font.pointSizeF());
    if (font.bold())
        text += QStringLiteral(" bold");
    if (font.italic())
        text += QStringLiteral(" italic");
    if (font.underline())
        text += QStringLiteral(" underline");
    return text;
}

QString usualProperty(const Target &target)
{
    if (qobject_cast<QTableView *>(target.widget))
        return QStringLiteral("rows");
    if (qobject_cast<QProgressBar *>(target.widget) || qobject_cast<QAbstractSlider *>(target.widget))
        return QStringLiteral("value");
    if (qobject_cast<QAbstractItemView *>(target.widget) || qobject_cast<StatusPanels *>(target.widget) ||
        qobject_cast<QTabWidget *>(target.widget))
        return QStringLiteral("items");
    return QStringLiteral("text");
}

} // namespace

QJsonValue propertyOf(const Target &target, const QString &property)
{
    static const std::map<QString, std::function<Answer(const Target &)>> readers{
        {QStringLiteral("text"), textOf},       {QStringLiteral("caption"), captionOf},
        {QStringLiteral("visible"), visibleOf}, {QStringLiteral("enabled"), enabledOf},
        {QStringLiteral("checked"), checkedOf}, {QStringLiteral("items"), itemsOf},
        {QStringLiteral("headers"), headersOf}, {QStringLiteral("rows"), rowsOf},
        {QStringLiteral("row"), rowOf},         {QStringLiteral("count"), countOf},
        {QStringLiteral("tooltip"), tooltipOf}, {QStringLiteral("maxlength"), maxlengthOf},
        {QStringLiteral("value"), valueOf},     {QStringLiteral("backcolor"), backcolorOf},
        {QStringLiteral("width"), widthOf},     {QStringLiteral("font"), fontOf},
    };
    const QString name = property.isEmpty() ? usualProperty(target) : property.toLower();
    const auto reader = readers.find(name);
    if (reader == readers.end())
        throw Wrong{QStringLiteral("there is no property ") + property};
    const Answer answer = reader->second(target);
    if (!answer)
        throw Wrong{QStringLiteral("this kind of control has no property ") + name};
    return *answer;
}

QString jsonText(const QJsonValue &value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

QJsonValue jsonValue(const QString &text)
{
    const QJsonDocument document = QJsonDocument::fromJson('[' + text.toUtf8() + ']');
    if (!document.isArray() || document.array().size() != 1)
        return QJsonValue(QJsonValue::Undefined);
    return document.array().first();
}
