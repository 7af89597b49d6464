// What a person's hands do: mouse and keyboard on controls that can be reached. Each throws NotThere or Wrong before
// it touches anything.
#pragma once

#include "Names.h"

void clickOn(const QString &name);
void doubleClickOn(const QString &name);
void hoverOver(const QString &name);
void typeInto(const QString &name, const QString &text);
void leaveControl(const QString &name);
void chooseItem(const QString &name, const QString &item);
void setCheck(const QString &name, bool on);
void goToRow(const QString &name, int row);
void editCell(const QString &name, int row, const QString &column, const QString &text);
void pressKey(const QString &form, const QString &key);
void triggerEntry(const QString &name);
void clickPanel(const QString &name, int panel);
void clickTab(const QString &name, int tab);
void resizeWindow(const QString &form, int width, int height);
void closeWindow(const QString &form);

void clickWidget(QWidget *widget);
void typeText(QWidget *widget, const QString &text);
// The key of a name such as "Ctrl+Down"; throws Wrong where it is none.
int keyNamed(const QString &name);
// A key on whatever has the focus in `window`; what stands in front of it is not asked.
void sendKey(QWidget *window, int key);
