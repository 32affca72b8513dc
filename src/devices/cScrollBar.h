#pragma once
// A scroll bar that a form adds to itself at run time to reach rows that do not
// fit: there is no scrolling container, every control of the form that is not
// exempt is moved by hand when the bar moves. One instance scrolls one way.
//
// Exempt from moving: the scroll bars themselves; a frame captioned "FrameOK",
// which stays at the foot; a frame captioned "FrameHead", which stays at the top
// (it still moves sideways with a horizontal bar); and the controls inside a
// captioned frame, which move with it. "FrameOK" frames and status bars make
// the fixed strip at the foot, which the vertical bar stops above.
//
// A form keeps its instance for as long as the form's own variables live, which
// is longer than one opening: before it unloads, it sets m_bCreated to false so
// that the next opening creates the bar anew.
#include <QList>
#include <QMetaObject>
#include <QPointer>
#include <QScrollBar>
#include <QtGlobal>

class QWidget;

class cScrollBar {
public:
    cScrollBar() = default;
    ~cScrollBar();
    cScrollBar(const cScrollBar&) = delete;
    cScrollBar& operator=(const cScrollBar&) = delete;

    bool m_bCreated = false;   // the bar exists in the form

    // Creates the vertical bar "ScrollBar1" in `form` if m_bCreated is false,
    // then lays it out. `form` is the form whose handler calls it.
    void DibujarScrollBarVert(QWidget* form);
    // The same for the horizontal bar "ScrollBar2".
    void DibujarScrollBarHoriz(QWidget* form);

    // The bar's change and scroll events.
    void ScrollBar_Change();
    void ScrollBar_Scroll();
    void ScrollBarH_Change();
    void ScrollBarH_Scroll();

    qint32 iLastValue = 0;          // value of the bar at the last move
    QPointer<QScrollBar> ScrollBar;   // the bar of a vertical instance
    QPointer<QScrollBar> ScrollBarH;  // the bar of a horizontal instance

private:
    QScrollBar& bar();    // ScrollBar; raises a RuntimeError when it is gone
    QScrollBar& barH();
    void create(QWidget* form, Qt::Orientation orientation);
    void layoutVert(QWidget* form);
    void layoutHoriz(QWidget* form);
    void moveVert();
    void moveHoriz();

    QList<QMetaObject::Connection> m_events;
};
