#pragma once
// What a scrolling form needs to know of its controls: their type names, their
// default texts, the order of the form's control collection, the container each
// sits in, and the frames whose captions have a fixed meaning.
#include <QList>
#include <QString>

class QGroupBox;
class QWidget;

// The type name of a control: "VScrollBar", "HScrollBar", "StatusBar", "Frame",
// "Label", "TextBox", "ComboBox", "CommandButton", "CheckBox", "OptionButton",
// "ListBox", "ListView"; any other widget answers its class name.
QString TypeName(const QWidget* control);

// The default text of a control: a frame's or label's caption, a text box's or
// combo box's text, a button's or scroll bar's value. A kind with no default
// text raises a RuntimeError.
QString DefaultText(const QWidget* control);

// Makes `form` remember the order in which controls are added to it, so that
// bringing a control to the front does not change the order of its control
// collection. A form calls it before it makes its first control.
void KeepControlOrder(QWidget* form);

// The controls of a form in the order of its control collection: its child
// widgets in the order they were added, each frame followed by its contents.
// The inner parts of a control (a combo box's list, say) are not controls.
QList<QWidget*> FormControls(QWidget* form);

// The caption of the container a control sits in: empty for a control placed
// on the form itself, a frame's caption for one inside a frame. A container
// with no caption raises a RuntimeError.
QString ContainerCaption(const QWidget* control);

// Draws a frame of fixed meaning ("FrameOK", "FrameHead") so that its caption is
// not seen; its background is painted, so that scrolled rows pass under it.
void DrawWithoutCaption(QGroupBox* frame);
