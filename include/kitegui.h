/*
 * kitegui: a graphical user interface for host programs on X11 with Motif.
 *
 * A host program links this library, hands it one handler function and then works with plain
 * integers and strings only. A complete host:
 *
 *     static int handle(int event, int id, int a, int b)
 *     {
 *         if (event == GUI_EVENT_COMMAND && id == GUI_COMMAND_CLOSE && guiYesNoBox("Leave?"))
 *             guiClose(0);
 *         return 0;
 *     }
 *
 *     int main(void)
 *     {
 *         guiSetAppInfo("My Host", "myhost");
 *         guiInit(handle);
 *         return guiStart(handle);
 *     }
 *
 * What holds for every function here:
 *
 *   - Thread: all calls come from the one thread that called guiInit. Handlers run on it, inside the
 *     event loop; a handler may call anything here, also functions that wait for the user.
 *   - Order: guiSetAppInfo (optional), guiInit, guiStart. A call that needs the frame and comes
 *     before guiInit, or after the frame was closed, does nothing and returns its failure value.
 *   - Strings: null-terminated bytes in the encoding of the fonts in use (ISO 8859-1 by default). A
 *     host that calls setlocale gets that locale's encoding in text fields and titles, as in all of Motif: there
 *     a text ends before the first byte that is none of the encoding.
 *     The library copies what it keeps. A null pointer is safe wherever a string is taken; each
 *     function says what it means.
 *   - Buffers: (char *buffer, int size) receive at most size - 1 bytes and are always terminated.
 *   - Misuse is shown to the user in an error box (guiErrorBox) that waits for OK; the call then
 *     returns its failure value. Each function quotes its messages.
 *   - Errors are never thrown, and the library ends the process in one case only: guiInit could not
 *     start.
 *
 * The host program also has to supply the seven host services declared at the end, or link the
 * ready-made ones of the kitehost library.
 */
#ifndef KITEGUI_H
#define KITEGUI_H

#ifdef __cplusplus
#include <cstdio>
#endif

#if defined(__GNUC__)
#define KITEGUI_API __attribute__((visibility("default")))
#else
#define KITEGUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------------------------------------
 * Handlers and events
 * ------------------------------------------------------------------------------------------ */

/*
 * A handler receives every user action as four integers: the event code, the id of the command or
 * control it concerns, and two values that the event defines. Its result is ignored.
 *
 * Two kinds exist. The host callback is given once to guiInit; window handlers are given to guiStart
 * (main frame) and to the dialog run calls. An event goes to the handler of the top window; when that
 * window has none, to the host callback. While the host callback runs, the pointer is a watch, and
 * any further event meant for the host callback is dropped. A window handler may be entered again
 * while it waits in a box.
 */
typedef int (*GuiHandler)(int event, int id, int a, int b);

/*
 * A plug-in is one call into host code that can raise events: it gets the library's dispatcher, which
 * delivers the four integers as if the user had acted. A negative result of a deferred plug-in is
 * reported to the host callback as (GUI_EVENT_INIT, -1, 0, 0).
 */
typedef int (*GuiPlugin)(GuiHandler dispatch);

/* A widget of the X toolkit: the same type as `Widget` of <X11/Intrinsic.h>. */
typedef struct _WidgetRec *GuiWidget;

/* Event codes. The comment gives the other three integers: id, a, b. */
enum {
    GUI_EVENT_INIT = 0,          /* 0, 0, 0: the frame is first shown, or a dialog is about to be shown.
                                    -1, 0, 0: a deferred dialog or plug-in ended with a negative result */
    GUI_EVENT_DROP = 10,         /* 0, 0, 0: a file name was dropped on the Output area (guiGetDropName) */
    GUI_EVENT_COMMAND = 11,      /* command id, state (1 set, 0 cleared or plain), 0: a menu item or toolbar
                                    button was chosen.
                                    button id, 0, 0: a push button of a dialog was pressed.
                                    0 (GUI_COMMAND_CLOSE), 0, 0: the window manager asked to close the
                                    top window.
                                    -1 to -12, 0, 0: F1 to F12 was pressed in the Output area */
    GUI_EVENT_TEXT_CHANGED = 21, /* id, value, 0: an edit changed (1 when not empty, else 0; a combo box
                                    always gives 0), or a spin box changed (its integer text) */
    GUI_EVENT_CHECK = 22,        /* id, state, 0: a check box was toggled */
    GUI_EVENT_RADIO = 23,        /* id, 1, 0: a radio button was selected */
    GUI_EVENT_VALUE = 24,        /* id, value, 0: a choice or combo box selection (its position) or a
                                    slider (its value) changed */
    GUI_EVENT_SELECT = 25,       /* id, index from 0, 1 for a double click or 0 for a selection: list, tree */
    GUI_EVENT_CURSOR = 26,       /* id, line from 0 (-1 when empty), column from 0: a multi-line text changed */
    GUI_EVENT_KEY = 27,          /* -1, key code (below), 1 with Control held: a special key in a control.
                                    id, x, y: an image was clicked, x and y pixels inside its frame */
    GUI_EVENT_LEFT = 41,         /* id, 1, 0: a control lost the keyboard focus; delivered late: when a dialog
                                    is closed with the focus in an edit, to the window behind it */
    GUI_EVENT_TIMER = 51,        /* 0, 0, 0: the periodic timer of guiTimer */
    GUI_EVENT_HELP = 61,         /* id, 0, 0: help was requested on a control */
    GUI_EVENT_CONTEXT = 62,      /* id, x, y: mouse button 3 was released on a push button, check box, radio
                                    button, choice, tree, slider or spin box, x and y pixels from its corner
                                    (of a tree: from that of its items, however far they are scrolled), or on
                                    an image, inside its frame.
                                    id, position from 1, 0: on a list, on the item at that position; below the
                                    last one the position behind it, 0 on an empty list.
                                    Not raised by an anonymous slider or spin box */
    GUI_EVENT_HOVER = 63,        /* id, 0, 0: the pointer rested on a control for the hover delay */
    GUI_EVENT_SCROLLED = 64      /* id, first visible line from 0, 0: a list, text or tree was scrolled */
};

/* Command ids with a meaning of their own. */
enum {
    GUI_COMMAND_CLOSE = 0,       /* the close command: also what a window manager's close request raises */
    GUI_COMMAND_F1 = -1,         /* Fn in the Output area raises command -n, down to ... */
    GUI_COMMAND_F12 = -12
};

/* Key codes of GUI_EVENT_KEY. F1 to F12 are 1 to 12. */
enum {
    GUI_KEY_F1 = 1,
    GUI_KEY_F12 = 12,
    GUI_KEY_UP = 13,             /* arrows: image and push button */
    GUI_KEY_DOWN = 14,
    GUI_KEY_LEFT = 15,
    GUI_KEY_RIGHT = 16,
    GUI_KEY_DELETE = 17,         /* these three: image, push button, choice and list */
    GUI_KEY_INSERT = 18,
    GUI_KEY_BACKSPACE = 19
};

/* Results of the standard boxes. */
enum {
    GUI_YES = 1,
    GUI_OK = 1,
    GUI_NO = 0,
    GUI_CANCEL = -1,             /* guiYesNoCancelBox and guiGetTextBox; guiOkCancelBox answers GUI_NO */
    GUI_FAILED = -1,
    GUI_TIP_TAKEN_DOWN = -999    /* guiTipBox: the toolkit removed the note by itself */
};

/* ---------------------------------------------------------------------------------------------
 * Start-up and the main frame
 * ------------------------------------------------------------------------------------------ */

/*
 * Sets the application's title and name; call it before guiInit.
 *
 *   title  default title of the frame and of all boxes, icon name, and the name under which X resource
 *          files address the widgets; at most 63 bytes are kept (default "Kite")
 *   name   section of the user profile that holds every setting; at most 63 bytes (default "kite")
 *
 * A null or empty argument leaves that one as it was. From here on toolkit warnings are dropped
 * silently. The result is of no use.
 */
KITEGUI_API int guiSetAppInfo(const char *title, const char *name);

/*
 * Starts the library: opens the display named by $DISPLAY, reads the settings, starts the log when
 * "logfm" asks for it, and shows the main frame at its saved place, or centred with 450 by 300 pixels
 * when the saved place does not fit the screen or is smaller than 300 by 200.
 *
 *   callback  the host callback, or null. Without any handler the frame can still be closed by the
 *             window manager.
 *
 * When the display, the shell or the main window cannot be had, it prints "Cannot open display",
 * "Cannot create the application shell" or "Cannot create the main window" on standard output and
 * ends the process with status 1. A second call does nothing while the frame is open or guiStart runs.
 */
KITEGUI_API void guiInit(GuiHandler callback);

/* Sets the title of the frame's window. Null or empty restores the application title. */
KITEGUI_API void guiSetFrameTitle(const char *title);

/* Shows a text in the status line, at once. Null or empty blanks it. */
KITEGUI_API void guiSetStatusLine(const char *text);

/* Shows the gauge of the status bar at a percentage, at once. Values are clamped to 0 to 100. */
KITEGUI_API void guiSetProgress(int percent);

/*
 * Moves, resizes, restores or iconifies the frame.
 *
 *   x, y   left and top edge in pixels of the screen
 *   w, h   width and height in pixels
 *
 * With w and h both non-zero the frame is restored from its icon and placed; a negative argument keeps
 * the current value, and values beyond 32767, the largest that X knows, count as 32767. When w or h is
 * 0 the frame is iconified. Returns 0.
 */
KITEGUI_API int guiMoveWin(int x, int y, int w, int h);

/*
 * Takes the frame back to its state before the host built its commands: the building of menus begins
 * again at the menu bar (menus that stand there stay), the toolbar is empty, the title is the application
 * title, the Output area is cleared (of the selected text only, when some is selected), the status line
 * and the gauge are blank; a dialog under construction is thrown away. The next event delivered is followed
 * by GUI_EVENT_INIT again. Returns 0.
 */
KITEGUI_API int guiRestart(void);

/*
 * The top window: the widget whose handler receives events and which is the parent of new boxes: the
 * main window, or the newest dialog or box. Null before guiInit and after the frame was closed.
 */
KITEGUI_API GuiWidget guiGetTopWnd(void);

/*
 * Makes a widget of the host's the top window. The host's handler for it, if any, stands in the
 * widget's XmNuserData. Null means no top window. When the widget is destroyed the main window is the
 * top window again.
 */
KITEGUI_API void guiSetTopWnd(GuiWidget widget);

/*
 * The window that the window manager put around the frame, learnt while events are processed, or 666
 * while none is known. Its offset is taken off the saved position when the frame closes.
 */
KITEGUI_API extern int decorWindow;

/* ---------------------------------------------------------------------------------------------
 * Event loop, timer and closing
 * ------------------------------------------------------------------------------------------ */

/*
 * Runs the main loop: shows the frame, delivers GUI_EVENT_INIT and then every event until the frame is
 * closed; then closes the display.
 *
 *   handler  the main frame's window handler, or null to use the host callback
 *
 * Returns 0, at once when the frame has been closed since guiInit; -1 when no guiInit has come since the
 * start or the last main loop, when a main loop runs already, or while a box waits.
 */
KITEGUI_API int guiStart(GuiHandler handler);

/*
 * Closes the top window: a running dialog ends with the given code as its result; a box ends as if its
 * window had been closed (the editor box without a question); for the main frame the geometry is saved (profile keys "mwndx", "mwndy",
 * "mwndw", "mwndh", unless "mwndp" is 0 or the frame is iconified), the log is stopped, the frame is
 * destroyed and guiStart returns.
 *
 *   code  0 or more; a negative one shows "Close: negative return code - 0 is used"
 *
 * No event is delivered meanwhile. Nothing happens when no window is open. The result is of no use.
 */
KITEGUI_API int guiClose(int code);

/*
 * Starts the periodic timer, which delivers GUI_EVENT_TIMER.
 *
 *   milliseconds  100 or more: start, or restart with this interval; less than 100: stop
 *
 * There is one timer. The next interval begins when the handler has returned.
 */
KITEGUI_API void guiTimer(int milliseconds);

/*
 * Returns 1 when the user has pressed Control+F10 since the last call, else 0: a long computation calls
 * it now and then. All key presses waiting at that moment are used up.
 */
KITEGUI_API int guiUserBreak(void);

/* Rings the display's bell at volume 50, at once. */
KITEGUI_API void guiBeep(void);

/*
 * Asks for a plug-in to run as soon as the handler that is running now has returned. One can be
 * waiting; a second call replaces it, null withdraws it. A dialog asked for at the same time goes first.
 */
KITEGUI_API void guiStartPlugin(GuiPlugin plugin);

/*
 * Runs a plug-in now and returns its result (-1 for null). A plug-in that waits is withdrawn.
 */
KITEGUI_API int guiRunPlugin(GuiPlugin plugin);

/*
 * For a host with an Xt application of its own and no main frame: makes the host's widget the parent of
 * boxes and takes the display and the application context from it. Null changes nothing.
 */
KITEGUI_API void guiSetOwner(GuiWidget owner);

/*
 * Fetches the file name last dropped on the Output area and forgets it.
 *
 *   buffer, size  receives the name; it is kept for another call when it does not fit (its length is
 *                 size or more). Names are cut at 1023 bytes when they are dropped.
 *
 * Returns the length; -1 with an empty buffer when there is no name or it does not fit; -1 after
 * "GetDropName: invalid buffer" for a null buffer or a size below 2.
 */
KITEGUI_API int guiGetDropName(char *buffer, int size);

/* ---------------------------------------------------------------------------------------------
 * Menus, toolbar and commands
 *
 * A command is an id of 0 or more, shown as a menu item, as a toolbar button or as both: the two are
 * twins then, enabled and checked together. Choosing either delivers GUI_EVENT_COMMAND with the id and,
 * for the check style, the new state.
 *
 * Commands are built between guiInit and guiStart (or the first event), when GUI_EVENT_INIT is delivered
 * or any time later: guiMenu then begins anew, see there. The calls that say "cannot be used now" belong
 * to that time, those that say "still in constructor" to the time after it; within GUI_EVENT_INIT that is
 * before and after guiMenu. What GUI_EVENT_INIT has built is complete when its handler returns.
 *
 * Names of menus and items hold at most 63 bytes. The letter or digit behind the first "&" is the
 * mnemonic; every "&" is left out of the label. A frame holds at most 512 items and 512 buttons.
 * ------------------------------------------------------------------------------------------ */

/* Styles of a command. */
enum {
    GUI_PLAIN = 0,               /* a push button */
    GUI_CHECK = 1                /* a toggle: each choice changes its state */
};

/*
 * Opens a menu, on the menu bar or inside the menu that is open.
 *
 *   name  its title, 0 to 63 bytes
 *
 * After the start it calls guiRestart first: no command remains, but the menus on the menu bar stay with
 * their items and accelerators, deliver their events and are beyond the reach of the calls by id; the
 * new menu stands behind them. Of equal accelerators and mnemonics the first one counts.
 *
 * Returns the level of the menu, 1 for one on the menu bar; -1 after "Menu: too many levels of menu" (255
 * are open) or "Menu: invalid name" (null or longer), in this order, and without a frame.
 */
KITEGUI_API int guiMenu(const char *name);

/*
 * Adds an item to the open menu.
 *
 *   name   its label, 1 to 63 bytes
 *   accel  0 or a blank: none. A digit or lower-case letter: the key with Control. An upper-case letter:
 *          with Control and Shift. Only 256 are installed; one more shows "MenuItem: too many accelerators
 *          - ignored", and the item is added without it.
 *   style  GUI_PLAIN or GUI_CHECK
 *   id     the command, 0 or more
 *
 * Returns the number of items so far; -1, and nothing is added, after the first of these that holds:
 * "MenuItem: cannot be used now", "MenuItem: only menus can be placed on the menu bar", "MenuItem:
 * invalid name", "MenuItem: invalid command id %d", "MenuItem: invalid style for id %d", "MenuItem:
 * command 0 must use plain style", "MenuItem: duplicate menu item id %d", "MenuItem: menu/toolbar style
 * conflict for id %d" (with its toolbar button), "MenuItem: invalid accelerator for id %d", "MenuItem:
 * too many menu items" (512).
 */
KITEGUI_API int guiMenuItem(const char *name, char accel, int style, int id);

/*
 * Adds a line to the open menu. Returns 0; -1 after "MenuSeparator: cannot be used now" or
 * "MenuSeparator: cannot be placed on the menu bar".
 */
KITEGUI_API int guiMenuSeparator(void);

/*
 * Closes the open menu. Returns the level that is left, 0 for the menu bar; -1 after "MenuEnd: cannot be
 * used now" or "MenuEnd: already on the menu bar level".
 */
KITEGUI_API int guiMenuEnd(void);

/*
 * Adds a button at the right end of the toolbar. Without a button there is no toolbar.
 *
 *   image    name of its image, 1 to 127 bytes: the file "tbbb/" + image + ".bmp" below kxAppDir(), 21 by
 *            21 pixels
 *   tooltip  shown when the pointer rests on it, at most 63 bytes; null or empty: none. A longer one
 *            shows "ToolbarButton: invalid tooltip for button %d", and the button is added without it.
 *   style    GUI_PLAIN or GUI_CHECK
 *   id       the command, 0 or more
 *
 * Plain buttons are flat unless the setting "tbbstyle" is 1. Returns the number of buttons so far; 0 when
 * the frame has no toolbar; -1, and nothing is added, after the first of these that holds:
 * "ToolbarButton: cannot be used now", "ToolbarButton: invalid image name for id %d", "ToolbarButton:
 * invalid command id %d", "ToolbarButton: invalid style for id %d", "ToolbarButton: command 0 must use
 * plain style", "ToolbarButton: duplicate button id %d", "ToolbarButton: menu/toolbar style conflict for
 * id %d" (with its menu item), "ToolbarButton: too many buttons" (512); and then, where %s is the path of
 * the file, "ToolbarButton: cannot load image %s", "ToolbarButton: image %s has wrong size",
 * "ToolbarButton: cannot add button %d".
 */
KITEGUI_API int guiToolbarButton(const char *image, const char *tooltip, int style, int id);

/*
 * Leaves a gap of 5 pixels before the next button; two in a row leave one. Returns the number of
 * separators so far; 0 when there is no button yet, and nothing is done; -1 after "ToolbarSeparator:
 * cannot be used now".
 */
KITEGUI_API int guiToolbarSeparator(void);

/*
 * Sets the state of a check command, item and button; no event is delivered. A plain menu item is left
 * alone, and its button with it.
 *
 *   id     the command; an unknown one changes nothing
 *   state  non-zero: set
 *
 * Returns 0; -1 after "SetCommandCheck: still in constructor".
 */
KITEGUI_API int guiSetCommandCheck(int id, int state);

/*
 * Makes a command choosable (enable non-zero) or greys it, item and button. An unknown id changes
 * nothing. Returns 0; -1 after "EnableCommand: still in constructor".
 */
KITEGUI_API int guiEnableCommand(int id, int enable);

/*
 * Returns the state of a check command, 1 or 0, of the menu item when there is one; 0 for a plain or
 * unknown command; -1 while commands are built.
 */
KITEGUI_API int guiGetCommandCheck(int id);

/* ---------------------------------------------------------------------------------------------
 * Popup menus
 *
 * A handler builds a menu, shows it and waits, often when GUI_EVENT_CONTEXT has come:
 *
 *     guiCreatePopMenu();
 *     guiAppendPopMenu("&Open");
 *     guiSepPopMenu();
 *     guiAppendPopMenu("&Remove");
 *     switch (guiShowPopMenu(0, 0, 0, 0)) {
 *     case 1: ...
 *
 * Its items are no commands: they have numbers, from 1 in the order in which they were made, and raise no event.
 * A menu is shown once. Appending to one that does not exist, or does not exist any more, does nothing.
 * ------------------------------------------------------------------------------------------ */

/*
 * Begins a popup menu, which belongs to the top window. One that was begun before and not shown is forgotten.
 * Returns 1; 0 without a top window.
 */
KITEGUI_API int guiCreatePopMenu(void);

/*
 * Appends an item.
 *
 *   name  1 to 63 bytes; the letter or digit behind the first "&" is the item's mnemonic, and every "&" is
 *         removed
 *
 * The result is of no use. "MenuItem: invalid name", as for the menu bar, for a wrong name; the item takes no
 * number then.
 */
KITEGUI_API int guiAppendPopMenu(const char *name);

/* Appends a separator, which takes no number. The result is of no use. */
KITEGUI_API int guiSepPopMenu(void);

/*
 * Shows the menu and waits until the user has picked an item or dismissed the menu. Other events are delivered
 * meanwhile; a box, a dialog or another menu that a handler shows then takes this one down. Afterwards the menu
 * does not exist any more.
 *
 *   x, y    from 1, in dialog units from the top window's corner; y counts rows of 14 units. The dialog's margin
 *           of 7 units comes on top. Where one of them is less than 1: at the pointer.
 *   mode    1: y counts single units
 *   listId  above 0: the menu opens at the right edge of this control of the dialog instead, level with its top
 *
 * Returns the number of the item, or 0: dismissed, no menu or no top window. A listId that there is not is reported
 * as by the operations on controls ("PopList: ..."), and the menu opens at the pointer. Before the first dialog,
 * units are those that a dialog would have.
 */
KITEGUI_API int guiShowPopMenu(int x, int y, int mode, int listId);

/* ---------------------------------------------------------------------------------------------
 * Output area
 *
 * The host's running output: one text of plain bytes, in which a line ends with "\n" or with the text.
 * The user may edit and select in it. What is written after a pause is shown at once; what follows closely
 * is shown together, 16 milliseconds later by the event loop or the next call of this section, or before
 * that by guiSetStatusLine, guiSetProgress, guiBeep, guiUserBreak and every box; and at the latest when the
 * handler returns. What is read is always the text as it is. Positions and columns count bytes. Everything
 * here may be called from guiInit until the frame is closed.
 * ------------------------------------------------------------------------------------------ */

/* Positions that guiGetCurPos and guiGetCurLine measure. */
enum {
    GUI_INSERTION_POINT = 0,     /* and every value that is neither of the others */
    GUI_SELECTION_START = 1,
    GUI_SELECTION_END = 2
};

/*
 * Adds a text at the end, as it is, puts the insertion point behind it and clears the selection. The log
 * gets the same text. Null writes nothing.
 */
KITEGUI_API void guiWriteText(const char *text);

/*
 * Adds a line: the text and "\n". Otherwise like guiWriteText; the log gets it as a line. Null writes
 * nothing. Without memory it shows "WriteLine: out of memory" and writes nothing.
 */
KITEGUI_API void guiWriteLine(const char *text);

/*
 * Replaces the selected text and puts the insertion point behind the new one. With nothing selected it
 * writes to the very beginning of the text. The log gets nothing. Null writes nothing.
 */
KITEGUI_API void guiWriteSel(const char *text);

/*
 * Adds a small part of HTML as plain text with line breaks (docs/output.md says which part), and a blank.
 * The log gets the markup as it is. Null writes nothing.
 */
KITEGUI_API void guiWriteHTML(const char *html);

/*
 * The same for any Motif text widget, without the log. "<body>" makes it editable, scrolling and without
 * word wrap, or what its attributes say. "<pre>" is remembered from call to call.
 *
 *   text  an XmText or XmTextField; null, or a widget of another kind, changes nothing
 *   html  null changes nothing; an empty one still adds a blank
 */
KITEGUI_API void guiHTML2Rich(GuiWidget text, const char *html);

/*
 * Deletes the selected text; with nothing selected, all of it. The log stays as it is. The result is of
 * no use.
 */
KITEGUI_API int guiClearOutput(void);

/*
 * Returns the number of lines: the "\n" bytes, and one more when there is text behind the last of them.
 * -1 without a frame, or after "GetLineCount: out of memory".
 */
KITEGUI_API int guiOutputLineCount(void);

/*
 * Fetches a line without its end.
 *
 *   line       its number, counted from 0
 *   buf, size  receives at most size - 1 bytes of it
 *
 * Returns the number of bytes copied; -1 with an empty buffer when there is no such line (the empty rest
 * behind a last "\n" is none) or no frame; -1 after "GetLine: invalid buffer" for a null buffer or a size
 * below 2, which leaves the buffer alone, and after "GetLine: out of memory".
 */
KITEGUI_API int guiOutputLine(int line, char *buf, int size);

/*
 * Returns the column of a position, counted from 0: the bytes between the start of its line and it. 0
 * when the text is empty, and for a selection when there is none; -1 without a frame, or after
 * "GetLineCount: out of memory".
 *
 *   which  GUI_SELECTION_START, GUI_SELECTION_END, or anything else for the insertion point
 */
KITEGUI_API int guiGetCurPos(int which);

/*
 * Returns the line of a position, counted from 1; 0 when the text is empty. Everything else is as with
 * guiGetCurPos: without a selection its start and end are at the start of line 1.
 */
KITEGUI_API int guiGetCurLine(int which);

/*
 * Selects a stretch of text, puts the insertion point at its end and scrolls there.
 *
 *   line      counted from 1, up to guiOutputLineCount() + 1: the place behind the last line
 *   startCol  where in the line it starts, in bytes from 0; it may reach into other lines
 *   count     its length in bytes; line 1, column 0 and count -1 (or 65535) select the whole text
 *
 * Start and end are kept in 16 bits, so that positions beyond 32767 wrap. A start or end that the text
 * does not have selects nothing new, and an end before the start selects nothing at all; the insertion
 * point goes to the nearest position to the end.
 *
 * Returns 1; 0 when there is no such line, the text is empty or there is no frame, and after
 * "GetLineCount: out of memory".
 */
KITEGUI_API int guiSelOutputLine(int line, int startCol, int count);

/*
 * Writes the selected text, or with nothing selected all of it, into a file that is replaced, byte for
 * byte.
 *
 * Returns 0; -1 without a frame; -1 after "SaveOutput: invalid file name" for a null or empty path,
 * "SaveOutput: out of memory", "SaveOutput: cannot open the file" or "SaveOutput: error writing the file".
 */
KITEGUI_API int guiSaveOutput(const char *path);

/* ---------------------------------------------------------------------------------------------
 * Clipboard
 *
 * Lines of text, and the selections of texts, on the X clipboard (CLIPBOARD), where other programs find them as
 * "STRING". Bytes are copied as they are. While another program holds the clipboard for itself, the calls wait.
 * Waiting for another program's text lets events pass; handlers that use the clipboard meanwhile find it empty
 * and change nothing.
 *
 * A line and its line end, or a selection, of more than 4095 bytes is not copied: the clipboard stays as it is.
 *
 * Mouse button 3 shows a menu over the Output area, and over edits, multi-line texts and combo boxes: Cut, Copy,
 * Paste, Clear (the selection, else everything) and Select All. Of a text that is there to be read only, it
 * changes nothing.
 * ------------------------------------------------------------------------------------------ */

/* Puts the text and a line end on the clipboard, in the place of what is there. Null does nothing. */
KITEGUI_API void guiCopyText(const char *text);

/*
 * The same behind what is there, all of which becomes the library's. (What another program has put there as
 * compound text only is taken over byte for byte.) The length of the whole is not limited.
 */
KITEGUI_API void guiCopyAppText(const char *text);

/* Returns the number of lines on the clipboard; a last line end begins none. 0 when there is no text. */
KITEGUI_API int guiClipLines(void);

/*
 * Copies a line of the clipboard, without its line end, into the buffer: at most size - 1 bytes.
 *
 *   line  from 1
 *
 * Returns the length; 0 when there is no text on the clipboard; -1 for a line that there is not, the buffer
 * empty; -1 after "GetClipLine: invalid buffer" for a null buffer or a size below 2.
 */
KITEGUI_API int guiPasteText(char *buffer, int size, int line);

/*
 * These work on a text widget of the host's own, or one of the library's (XmText, XmTextField); for others they do
 * nothing. The first two do nothing when nothing is selected, and guiCutSel removes nothing that it could not
 * copy, nor from a read-only text.
 */
KITEGUI_API void guiCopySel(GuiWidget text);
KITEGUI_API void guiCutSel(GuiWidget text);

/*
 * Removes the selection, inserts the "STRING" on the clipboard there, or at the insertion point, and leaves the
 * insertion point before it, in a read-only text as well. An empty clipboard inserts nothing. An XmTextField takes up
 * to 250,000 bytes, which is what X can draw.
 */
KITEGUI_API void guiPasteSel(GuiWidget text);

/* ---------------------------------------------------------------------------------------------
 * Dialogs
 *
 * A handler opens a dialog with guiDialog, places controls on it, one call each, and runs it:
 *
 *     guiDialog("Name");
 *     guiLabel(GUI_ANONYMOUS, 0, 0, 30, "&Name:");
 *     guiEdit(1, 0, 32, 80, 0, 0);
 *     guiButton(2, 2, 32, 36, "OK", 1);
 *     guiButton(GUI_CANCEL_BUTTON, 2, 76, 36, "Cancel", 0);
 *     if (guiRunDialog(handleName) == 1) ...
 *
 * While it runs, its handler gets its events and reads and changes its controls by their ids; guiClose
 * ends it. The first event is GUI_EVENT_INIT, before the dialog is seen: there the handler fills it.
 * Dialogs nest: a handler may build and run another one, and guiRunDialog returns when that is closed.
 * All of them block the windows behind them.
 *
 * Places and sizes are in dialog units, which grow with the dialog's font (that of the status line): a
 * horizontal unit is a quarter of the average width of a letter, a vertical one an eighth of the height of
 * a line. There is a margin of 7 units on all sides; the dialog is as large as its controls need. Rows are
 * 14 units apart, counted from 0; each kind of control stands in the middle of its row. After
 * guiUseAbsPos(1) the row of every call is the top of the control in vertical units instead.
 *
 * Ids are 1 to 32767, each once in a dialog. Push buttons may also have id 0, which makes them the cancel
 * button; labels and lines (and progress bars, sliders and spin boxes) may have id -1, any number of them:
 * no operation can reach them then.
 * ------------------------------------------------------------------------------------------ */

/* Ids of controls with a meaning of their own. */
enum {
    GUI_ANONYMOUS = -1,          /* a label or line that no operation needs */
    GUI_CANCEL_BUTTON = 0        /* Escape presses it */
};

/*
 * Begins a dialog: the top window at this moment becomes the window that it belongs to. Null is an empty
 * title.
 *
 * Returns 0; -1 after "Dialog: the system must be started first" (before guiStart or the first event, or
 * after guiRestart), "Dialog: handlers must return after StartDialog", "Dialog: you must start the previous
 * dialog first", and, when the toolkit fails, "Dialog: cannot create dialog shell", "Dialog: cannot create
 * bulletin board widget", "Dialog: cannot allocate dialog font", "Dialog: cannot retrieve dialog font".
 * guiClose throws a dialog away that has not been run.
 */
KITEGUI_API int guiDialog(const char *title);

/*
 * Runs the dialog as soon as the handler that is running now has returned. It has no handler of its own:
 * its events go to the host callback. Returns 0; -1 after "StartDialog: no prepared dialog".
 */
KITEGUI_API int guiStartDialog(void);

/*
 * Runs the dialog and waits until it is closed.
 *
 *   handler  gets the events of the dialog; null to use the host callback
 *
 * The first sensitive control that the keyboard can work on has the focus, or the one that the handler has
 * named with guiSetFocus during GUI_EVENT_INIT. No event is delivered while the dialog is being shown. A
 * dialog that its handler closes during GUI_EVENT_INIT is never shown. When it ends, the periodic timer
 * is stopped.
 *
 * Returns the code given to guiClose, 0 or more (0 also when the dialog's widgets were destroyed by other
 * means); -1 after "RunDialog: no prepared dialog".
 */
KITEGUI_API int guiRunDialog(GuiHandler handler);

/*
 * Sets the title of the dialog that runs. Null is an empty title. While only the main frame is open it
 * shows "SetDialogTitle: no dialog".
 */
KITEGUI_API void guiSetDialogTitle(const char *title);

/*
 * Returns the id of the control that has the keyboard in the dialog that runs; -1 without a dialog, and
 * when it cannot be told: for a button of id 0, and for lists, trees, sliders and spin boxes. (For a
 * multi-line text in which something was changed the result is of no use.)
 */
KITEGUI_API int guiGetFocus(void);

/*
 * Non-zero: the row of the controls that follow is the top of the control in vertical units. 0: it is a
 * row again. Each guiDialog begins with rows.
 */
KITEGUI_API void guiUseAbsPos(int on);

/* Labels, check boxes and radio buttons that follow get a border of one pixel, up to the next guiDialog. */
KITEGUI_API void guiShowAllBorders(void);

/* Does nothing; hosts may call it. */
KITEGUI_API void guiContextHelp(void);

/* The step from row to row and the heights of controls, in vertical dialog units. */
KITEGUI_API int guiGetDefRowStep(void);     /* 14 */
KITEGUI_API int guiGetMaxCtrlHeight(void);  /* 12 */
KITEGUI_API int guiGetLabelHeight(void);    /* 8 */
KITEGUI_API int guiGetEditHeight(void);     /* 12 */
KITEGUI_API int guiGetButtonHeight(void);   /* 12 */
KITEGUI_API int guiGetCheckHeight(void);    /* 10 */
KITEGUI_API int guiGetRadioHeight(void);    /* 10 */
KITEGUI_API int guiGetChoiceHeight(void);   /* 12 */

/* ---------------------------------------------------------------------------------------------
 * Simple controls
 *
 * What all constructors of controls have in common:
 *
 *   id     see above
 *   row    the row, from 0; after guiUseAbsPos(1) the top in vertical units
 *   x      the left edge in horizontal units, from 0 at the margin
 *   width  in horizontal units
 *   text   the label: at most 255 bytes are kept, every "&" is removed, lines are divided by "\n". Null is
 *          an empty text.
 *
 * They show one of these and make nothing, with the name of the control for %s: "%s: no dialog is built at
 * the moment", "%s: too many dialog items" (32768 are possible), "%s: invalid control id %d", "%s: duplicate
 * control id %d", checked in this order; and "%s: cannot create control %d" when the toolkit fails. They
 * return 0 then -1; hosts need not look at it.
 *
 * The Tab key goes to edits, buttons, check boxes and radio buttons, in the order of creation; an image takes
 * the keyboard when it is clicked. These five report GUI_EVENT_HELP and GUI_EVENT_KEY, and all controls but
 * lines and anonymous labels GUI_EVENT_HOVER.
 * ------------------------------------------------------------------------------------------ */

/* A text. 8 units high. */
KITEGUI_API int guiLabel(int id, int row, int x, int width, const char *text);

/*
 * One line of text to type in. 12 units high.
 *
 *   hidden    non-zero: what is typed cannot be read (passwords)
 *   readOnly  non-zero: the text can be selected, but not changed
 *
 * Raises GUI_EVENT_TEXT_CHANGED with 1 when there is text, else 0, and GUI_EVENT_LEFT.
 */
KITEGUI_API int guiEdit(int id, int row, int x, int width, int hidden, int readOnly);

/*
 * A push button. 12 units high. Raises GUI_EVENT_COMMAND with its id.
 *
 *   width      0: the button is not seen; Return (if it is the default button) and Escape (if its id is 0)
 *              still press it
 *   isDefault  non-zero: Return presses it. The last one that is marked counts.
 */
KITEGUI_API int guiButton(int id, int row, int x, int width, const char *text, int isDefault);

/* A check box, not set at first. 10 units high. Raises GUI_EVENT_CHECK with its new state. */
KITEGUI_API int guiCheck(int id, int row, int x, int width, const char *text);

/*
 * A radio button. 10 units high. Those that are made one after the other are a group: the first is set at
 * first, and when the user sets another, that one is cleared. Raises GUI_EVENT_RADIO when it is set by
 * the user; one that is set already stays so and raises nothing.
 */
KITEGUI_API int guiRadio(int id, int row, int x, int width, const char *text);

/*
 * A line across (rows below 2), a line down (width 1), or else a rectangle, drawn around whatever stands
 * in it. After guiUseAbsPos(1) `rows` is the height in vertical units, and 1 is a line. A line of no length,
 * or a point, is not made.
 */
KITEGUI_API int guiLine(int id, int row, int rows, int x, int width);

/*
 * A place for a picture (guiSetImage), rows * 14 - 2 units high. A click of button 1 gives it the keyboard, which
 * the Tab key then moves to the first control of the dialog.
 *
 *   framed  non-zero: with a shadow of two pixels
 */
KITEGUI_API int guiImage(int id, int row, int rows, int x, int width, int framed);

/* ---------------------------------------------------------------------------------------------
 * Lists, choices, texts, trees and values
 *
 * As the simple controls, with the same arguments and checks. `rows` is the number of rows: the control is
 * rows * 14 - 2 units high, or after guiUseAbsPos(1) `rows` vertical units. Where the toolkit's failure has
 * other words than "%s: cannot create control %d" they are quoted.
 *
 * All of them are made empty, and filled by operations when the dialog runs, usually during GUI_EVENT_INIT.
 * The Tab key goes to all but progress bars. All report GUI_EVENT_HELP, GUI_EVENT_KEY and GUI_EVENT_HOVER.
 *
 * Lists, multi-line texts and trees have scroll bars, and raise GUI_EVENT_SCROLLED when they are scrolled in
 * any way, with what guiGetTop returns.
 * ------------------------------------------------------------------------------------------ */

/* How many items of a list can be selected. Values outside count as the nearest. */
enum {
    GUI_BROWSE = 0,              /* one, which follows the pointer while the button is held */
    GUI_EXTENDED = 1,            /* ranges, with Shift and Control */
    GUI_MULTIPLE = 2             /* each click selects or deselects an item */
};

/*
 * A list of items.
 *
 *   selectionMode  GUI_BROWSE, GUI_EXTENDED or GUI_MULTIPLE
 *
 * Raises GUI_EVENT_SELECT with the index of the item, from 0, when items are selected or deselected, and
 * again with 1 when it is clicked twice. Only with GUI_MULTIPLE can the user deselect all of them. Return
 * raises nothing.
 */
KITEGUI_API int guiList(int id, int row, int rows, int x, int width, int selectionMode);

/*
 * One of several items, picked from a list that drops down. 12 units high. Raises GUI_EVENT_VALUE with the
 * position of the item, from 0. The list is as high as the user's setting "ch_height" allows.
 */
KITEGUI_API int guiChoice(int id, int row, int x, int width);

/*
 * The same with a text to type in: "Edit: cannot create control %d". Raises GUI_EVENT_TEXT_CHANGED whenever
 * the text changes, and GUI_EVENT_VALUE when an item is picked, and again when a text that was typed is left:
 * with the position that is selected in the list (0 when none is), and behind GUI_EVENT_LEFT when the keyboard
 * moved it on. The text has at most 250,000 bytes, which is what X can draw.
 */
KITEGUI_API int guiCombo(int id, int row, int x, int width);

/*
 * Several lines of text, in the font of the Output area.
 *
 *   readOnly  non-zero: the text can be selected, but not changed
 *
 * Raises GUI_EVENT_CURSOR when the user changes the text, with the line and the column of the insertion
 * point, both from 0; for a text that is empty now, -1 and 0. Raises GUI_EVENT_LEFT. When there is no memory
 * it shows "GetLineCount: out of memory" in the place of GUI_EVENT_CURSOR.
 */
KITEGUI_API int guiText(int id, int row, int rows, int x, int width, int readOnly);

/*
 * An outline of items, which the user expands and collapses: "Text: cannot create control %d" or "Tree: cannot
 * create control %d". Raises GUI_EVENT_SELECT with the key of the item less 1 (-1 when nothing is selected),
 * and again with 1 when it is clicked twice. The pictures "images/tree_open.bmp" and "images/tree_close.bmp"
 * of the application directory are the marks that a click expands and collapses.
 */
KITEGUI_API int guiTree(int id, int row, int rows, int x, int width);

/*
 * A number, to type or to step through with two arrows, from 0 to 100 at first (guiSetRange). 12 units high:
 * "spin: cannot create control %d". Raises GUI_EVENT_TEXT_CHANGED with the number whenever it changes.
 */
KITEGUI_API int guiSpin(int id, int row, int x, int width);

/*
 * A value that the user drags, from 0 to 100 at first (guiSetRange), across or, when it is higher than it is
 * wide, down. It stands as guiLine does, but is at least 12 pixels high and 15 wide. Raises GUI_EVENT_VALUE,
 * also while it is dragged. One of no size is not made.
 */
KITEGUI_API int guiSlider(int id, int row, int rows, int x, int width);

/*
 * A bar that shows a value from 0 to 100 (guiSetRange); the user cannot change it. It stands as guiLine does,
 * but is at least 5 units high and wide: "progress: cannot create control %d". One of no size, or of a
 * single unit, is not made.
 */
KITEGUI_API int guiProgress(int id, int row, int rows, int x, int width);

/* ---------------------------------------------------------------------------------------------
 * Operations on the controls of the dialog that runs
 *
 * Each takes the id of a control and shows one of these and does nothing else when it cannot be done, with
 * its own name (without "gui") for %s: "%s: no dialog" (only the main frame is open), "%s: wrong id %d"
 * (below 0), "%s: no control with id %d in the dialog", "%s: unsuitable control type (id = %d)". It returns
 * -1 then, or 0 or 0.0 where it returns a number of the control. While a box is open the box is the top
 * window, and has no controls.
 *
 * What these operations change raises no event. There is one flag for that, which is no counter: an
 * operation called while it is up lowers it when it ends.
 * ------------------------------------------------------------------------------------------ */

/* Returns 1 when the control is enabled, 0 when not, -1 quietly when there is no such control. */
KITEGUI_API int guiIdStatus(int id);

/* Enables (non-zero) or disables (0) a control. Not for lines and images. */
KITEGUI_API void guiEnable(int id, int enable);

/*
 * Gives the keyboard to a control; during GUI_EVENT_INIT: when the dialog is shown. In the handler of
 * GUI_EVENT_LEFT it sends the user back; no GUI_EVENT_LEFT comes of that, unless the handler has shown a box before:
 * the control that the user went to has been left for the box then, and tells of it. Not for labels, lines, images
 * and progress bars.
 */
KITEGUI_API void guiSetFocus(int id);

/* Shows (non-zero) or hides (0) a control, of any type. Its place stays free. */
KITEGUI_API void guiSetVisible(int id, int visible);

/*
 * Gives a control its text, which is seen at once, also when the handler computes on. (Of dozens of texts set
 * in a row the last ones are seen when the handler returns.) Null is an empty text.
 *
 *   label, check box, radio button, push button  as their constructors do; a push button that showed an
 *                     image shows its text again
 *   edit, multi-line text  the whole text
 *   combo box         the text of its field; an item of that text is selected
 *   spin box          its value, the number at the beginning of the text
 *
 * Not for others.
 */
KITEGUI_API void guiSetText(int id, const char *text);

/* The same with a number: as printf's "%g" and "%d" write it. Misuse is shown as "SetText: ...". */
KITEGUI_API void guiSetTextDbl(int id, double value);
KITEGUI_API void guiSetTextInt(int id, int value);

/*
 * Copies the text of a control into the buffer and returns the length of what stands there.
 *
 *   label, check box, radio button, push button, edit  its text
 *   choice, combo box   the selected item, or what is typed
 *   list                the item at the keyboard cursor; -1 when there is none
 *   multi-line text     the selected part, 0 when there is none
 *   tree                the label of the first selected item, 0 when there is none
 *   spin box            what stands in its field
 *
 * -1 also after "GetText: invalid buffer" for a null buffer or a size below 2, which is tested first, and
 * for other controls.
 */
KITEGUI_API int guiGetText(int id, char *buffer, int size);

/* The first 255 bytes of that text as a number, as far as it is one; 0 when there is none. */
KITEGUI_API double guiGetTextDbl(int id);
KITEGUI_API int guiGetTextInt(int id);

/* The length of that text in bytes, however long. Not for trees. */
KITEGUI_API int guiGetTextLen(int id);

/*
 * For a multi-line text: puts a text in the place of the selected one and selects it; when nothing is
 * selected, at the insertion point. The insertion point is behind it afterwards. Null is an empty text.
 */
KITEGUI_API void guiInsertText(int id, const char *text);

/* Returns 1 when a check box or radio button is set, else 0. */
KITEGUI_API int guiGetCheck(int id);

/* Sets (non-zero) or clears (0) a check box or radio button, and no other button of its group. */
KITEGUI_API void guiSetCheck(int id, int state);

/*
 * Sets the limits of a control's value.
 *
 *   edit, multi-line text  at most `max` characters can be typed, when max is above 0
 *   progress bar, slider   the values are min - 1 to max - 1
 *   spin box               the values are min to max
 *
 * A value outside the new limits becomes the nearest one inside. Limits change nothing
 * when min is not below max, and those of a scale when they are more than 1,073,741,823 apart, which is all
 * that the toolkit can do.
 */
KITEGUI_API void guiSetRange(int id, int min, int max);

/*
 * Shows a picture (see guiToolbarButton for the files that can be read) in an image control or on a push
 * button. Parts of it that are not drawn have the control's background.
 *
 *   image control  the upper left part that fits
 *   push button    the whole picture instead of the text
 *
 * Null or "" clears the picture. Returns 0; -1, with the picture cleared, after "guisetimage: cannot load
 * image %s" and when the server has no memory for it.
 */
KITEGUI_API int guiSetImage(int id, const char *fileName);

/* Flags of guiSetTextAtt, for a font family. */
enum {
    GUI_FONT_BOLD = 1,
    GUI_FONT_ITALIC = 2,
    GUI_FONT_UNDERLINE = 4,      /* only where the server has such a font */
    GUI_FONT_LARGE = 8,          /* 18 pixels; without a size it is 14 */
    GUI_FONT_SMALL = 16          /* 10 pixels; one size at a time is of use */
};

/*
 * Gives a control, of any type, colours or a font.
 *
 *   flags  GUI_FONT_..., combined; for a font family only
 *   attr   one of
 *          "#RRGGBB"           the colour of the text, in hexadecimal digits
 *          "#RRGGBB/#RRGGBB"   that of the text and the background
 *          "/#RRGGBB"          the background
 *          "-..." or "*..."    an X font name or pattern
 *          "VEXFIXED"          the font of the Output area (profile key "fnamt")
 *          "VEXVARIABLE"       the font of the status line and of dialogs ("fnamm")
 *          any other text      a font family: "Times". "Courier New" and "Arial" are the X families courier
 *                              and helvetica
 *          null or ""          neither
 *
 * Every call first sets the text of labels, buttons, check boxes and radio buttons to black; that of edits
 * (hidden ones can be read then), choices, lists, combo boxes, trees and spin boxes to black on white; and the
 * filled part of progress bars to black. For a progress bar the colour of the text is that of the filled part.
 * Colours change no font. What cannot be read of a colour, or a font that the server does not have, changes
 * nothing more.
 *
 * Behind all but colours a label, edit, button, check box, radio button or spin box is made as high as its
 * font needs when that is higher than the dialog's; else it stays as high as it is, and so do all other
 * controls. Fonts stay loaded until the display is closed. Misuse is shown as "SetText: ...".
 */
KITEGUI_API void guiSetTextAtt(int id, char flags, const char *attr);

/*
 * Returns the first visible line of a multi-line text, item of a list or row of a tree, from 0. Rows of a tree
 * are the items that can be seen by scrolling: what is below a collapsed item does not count. -1 when the text
 * cannot be had.
 */
KITEGUI_API int guiGetTop(int id);

/*
 * Scrolls a list or a multi-line text.
 *
 *   line  from 0. For a list: -1 is the last item; an item that it does not have changes nothing. For a
 *         text: lines below 0 or above the number of lines of the Output area change nothing; behind the last
 *         line it is the end of the text. The insertion point goes there too.
 *
 * "GetLineCount: out of memory" when the text cannot be had.
 */
KITEGUI_API void guiSetTop(int id, int line);

/*
 * Reads and sets the position of a control.
 *
 *                    guiSetPos(pos)                         guiGetPos
 *   edit             insertion point behind pos characters  -
 *   choice           -                                      selected position, as the toolkit keeps it
 *   list             item pos on top                        item on top
 *   multi-line text  nothing is selected any more, and the  first visible line, from 1; 0 for an
 *                    insertion point is at the beginning    empty text
 *                    of line pos (as in guiSetTop)
 *   progress bar     value pos + 1                          value
 *   slider           value pos                              value
 *   spin box         value pos + 1                          value - 1
 *   tree             -                                      index of the first selected item from 1, 0
 *                                                           for none
 *
 * After guiGetPos no event is delivered until an operation that changes a control has run; likewise after
 * guiSetPos for a line that the text does not have.
 */
KITEGUI_API int guiGetPos(int id);
KITEGUI_API void guiSetPos(int id, int pos);

/* ---------------------------------------------------------------------------------------------
 * Operations on items and lines
 *
 * As above. Indexes count from 0, and an index that the control does not have does nothing, or gives -1,
 * without a word. An item keeps the first 1023 bytes of its text; null is an empty text; "\n" divides lines.
 * ------------------------------------------------------------------------------------------ */

/*
 * Adds an item at the end of a list, choice or combo box. The first item of a control is selected at once, but
 * for a list of GUI_MULTIPLE. Of numbers small ones are written out ("0.00005", to eight decimals), others
 * with up to 14 digits as printf's "%.14G" writes them. Misuse is shown as "AppendItem: ...".
 */
KITEGUI_API void guiAppendItem(int id, const char *text);
KITEGUI_API void guiAppendItemDbl(int id, double value);
KITEGUI_API void guiAppendItemInt(int id, int value);

/*
 * The same before the item of that index; below 0 or behind the last item: at the end. Misuse is shown as
 * "InsertItem: ...".
 */
KITEGUI_API void guiInsertItem(int id, int index, const char *text);
KITEGUI_API void guiInsertItemDbl(int id, int index, double value);
KITEGUI_API void guiInsertItemInt(int id, int index, int value);

/*
 * Removes an item.
 *
 *   list    When the item at the keyboard cursor or one before it goes the cursor goes to the item before;
 *           when a later one goes, or the item at the cursor and it is not the last, the cursor keeps its
 *           index. In a list of GUI_BROWSE the item at the cursor is selected then.
 *   choice, combo box   When the selected item goes the next one is selected, or the last. -1 is the last
 *           item. Without items the text is empty.
 *   tree    `index` is the item's key. The items below it move to the top level; guiDelTree removes
 *           them too.
 */
KITEGUI_API void guiRemoveItem(int id, int index);

/*
 * Removes all items of a list, choice or combo box, the text of an edit or multi-line text, or of a tree the
 * items at the top level: those below them move up, as with guiRemoveItem.
 */
KITEGUI_API void guiRemoveAll(int id);

/*
 * Returns the index of the first item of a list behind startIndex (-1: of all) whose text is this one; -1 when
 * there is none, and for a null text. 1 for a tree, which is not searched.
 */
KITEGUI_API int guiFindItem(int id, int startIndex, const char *text);

/*
 * Copies the text of an item of a list, choice or combo box into the buffer and returns its length; -1 with an
 * empty buffer when there is no such item. Of a tree it is the item of key index + 1: 0 with an empty buffer
 * when there is none, -1 for an index below 0. -1 also after "GetItem: invalid buffer" for a null buffer or a
 * size below 2, which is tested first.
 */
KITEGUI_API int guiGetItem(int id, int index, char *buffer, int size);

/* The first 255 bytes of that text as a number, as far as it is one; 0 when there is none. */
KITEGUI_API double guiGetItemDbl(int id, int index);
KITEGUI_API int guiGetItemInt(int id, int index);

/* Returns the number of items of a list, choice or combo box; of a tree how many are selected. */
KITEGUI_API int guiGetItemCount(int id);

/*
 * Returns the length in bytes of an item of a list, choice or combo box, -1 when there is none and after
 * "GetItemLen: out of memory".
 */
KITEGUI_API int guiGetItemLen(int id, int index);

/* Selects all items of a list (not of GUI_BROWSE), or the text of an edit or multi-line text. */
KITEGUI_API void guiSelAll(int id);

/* Returns how many items of a list are selected; always 1 for a list of GUI_BROWSE. */
KITEGUI_API int guiGetSelCount(int id);

/*
 * Stores the indexes of the selected items of a list, `size` at most, and returns how many it has stored. Of
 * a list of GUI_BROWSE it is the item at the keyboard cursor. -1 after "GetSelItems: invalid array" for a
 * null array or a size below 1, which is tested first.
 */
KITEGUI_API int guiGetSelItems(int id, int *array, int size);

/*
 * Returns the index of the n-th selected item of a list, counted from 0; -1 when fewer are selected, and
 * after "GetNthSel: out of memory". Misuse is shown as "GetSelCount: ...".
 */
KITEGUI_API int guiGetNthSel(int id, int n);

/*
 * Selects.
 *
 *   list              the item, beside those that are selected where several can be. When it is the only
 *                     one it gets the keyboard cursor and is scrolled into view.
 *   choice, combo box the item; below 0: none, and the text is empty
 *   tree              the item of key index + 1
 *   edit, spin box    the text between the insertion point and the character of that index, where the
 *                     insertion point goes
 *   multi-line text   the text from the beginning of line `index` to the position that is the length of
 *                     that line: the line itself for line 0, and nothing when that position comes first. (For
 *                     an empty line it is the length of all that follows.) "GetLine: out of memory" when the
 *                     text cannot be had.
 */
KITEGUI_API void guiSetSel(int id, int index);

/*
 * Returns what is selected.
 *
 *   list               the item at the keyboard cursor; -1 for an empty list
 *   choice, combo box  the item; -1 when the text is not that of the selected item, by its first 9 bytes
 *   tree               the key of the first selected item less 1; 0 when there is none
 *   progress bar, slider  the value
 *   spin box           the value less 1
 */
KITEGUI_API int guiGetSel(int id);

/*
 * Deselects all items of a list (not of GUI_BROWSE), the text of an edit or multi-line text (the insertion
 * point goes to its beginning), or the item of a combo box, whose text is empty then. Does nothing with
 * other controls, without a word.
 */
KITEGUI_API void guiClrAll(int id);

/*
 * Deselects an item of a list (not of GUI_BROWSE), or that of a combo box as guiClrAll does. Does nothing with
 * other controls, without a word.
 */
KITEGUI_API void guiClrSel(int id, int index);

/*
 * Moves the item at the keyboard cursor of a list by one place, and the cursor with it. It stays selected when
 * it was (in a list of GUI_BROWSE it is afterwards). The first and the last item of a list go no further.
 */
KITEGUI_API void guiMoveItemUp(int id);
KITEGUI_API void guiMoveItemDown(int id);

/*
 * Copies a line of a multi-line text into the buffer.
 *
 *   line  from 0; -1 is the whole text
 *
 * Returns the length of what stands there; -1 with an empty buffer when there is no such line (the empty rest
 * behind a last "\n" is none); -1 after "GetLine: invalid buffer" for a null buffer or a size below 2, which is
 * tested first, and after "GetLine: out of memory".
 */
KITEGUI_API int guiGetLine(int id, int line, char *buffer, int size);

/*
 * Returns the number of lines of a multi-line text, 0 when it is empty; -1 after "GetLineCount: out of
 * memory".
 */
KITEGUI_API int guiGetLineCount(int id);

/*
 * Adds a line and a "\n" at the end of a multi-line text; the insertion point stays. Null is an empty line.
 * "AppendLine: out of memory".
 */
KITEGUI_API void guiAppendLine(int id, const char *text);

/*
 * Adds markup (guiWriteHTML) at the end of a multi-line text. Null is an empty text. Misuse is shown as
 * "AppendItem: ...".
 */
KITEGUI_API void guiAppendHTML(int id, const char *html);

/* ---------------------------------------------------------------------------------------------
 * Operations on trees
 *
 * The host gives each item a key, which is any number but 0: 0 is the root. When two items have the same key
 * the first one in the outline is meant: an item and all that is below it come before the next one beside it.
 * ------------------------------------------------------------------------------------------ */

/*
 * Adds an item behind those below the parent.
 *
 *   parentKey  0, or a key that the tree does not have, for the top level
 *   text       null is an empty text
 *
 * Returns 0, also after the error box for a control that is no tree; -1 when there is no such control. Misuse is
 * shown as "InsertTreeItem: ...".
 */
KITEGUI_API int guiAddTree(int id, int parentKey, int key, const char *text);

/*
 * Returns the number of items directly below the parent, 0 for a key that the tree does not have. Misuse is
 * shown as "NumTreeItem: ...".
 */
KITEGUI_API int guiNumTree(int id, int parentKey);

/*
 * Returns the key of the n-th item directly below the parent, counted from 1; 0 when there is none. Misuse is
 * shown as "NumTreeItem: ...".
 */
KITEGUI_API int guiNthTree(int id, int parentKey, int n);

/*
 * Removes an item and all that is below it. Does nothing for key 0 and for a key that the tree does not have.
 * Misuse is shown as "DelTreeItem: ...".
 */
KITEGUI_API void guiDelTree(int id, int key);

/* ---------------------------------------------------------------------------------------------
 * Standard boxes
 *
 * All but the tip are modal for the whole application: the call returns when the user has answered.
 * The title is the application title. Message texts may hold several lines, divided by "\n"; a null
 * text counts as empty. Without a window to belong to (before guiInit, no owner) no box is shown and the
 * call returns what it returns for a closed window.
 * ------------------------------------------------------------------------------------------ */

/* Shows an information with an OK button. */
KITEGUI_API void guiInfoBox(const char *message);

/* Shows an error with an OK button, under the application title followed by " Error". */
KITEGUI_API void guiErrorBox(const char *message);

/*
 * Shows a small note at the pointer until the next click or until the pointer enters or leaves it.
 * Returns 0, or GUI_TIP_TAKEN_DOWN when the toolkit removed the note (Escape, a click elsewhere); 0
 * at once when there is no main frame.
 */
KITEGUI_API int guiTipBox(const char *text);

/* Asks with OK and Cancel. Returns 1 for OK; 0 for Cancel or a closed window. */
KITEGUI_API int guiOkCancelBox(const char *message);

/* Asks with Yes and No. Returns 1 for Yes; 0 for No or a closed window. */
KITEGUI_API int guiYesNoBox(const char *message);

/* Asks with Yes, No and Cancel. Returns 1 for Yes, 0 for No, -1 for Cancel or a closed window. */
KITEGUI_API int guiYesNoCancelBox(const char *message);

/*
 * Asks for one line of text.
 *
 *   prompt        the text above the field
 *   buffer, size  holds the text the field starts with, and receives the answer: at most size - 1 bytes,
 *                 and never more than 250,000, which is what X can draw
 *   hidden        non-zero: what is typed cannot be read (passwords)
 *
 * Returns the length of the answer after OK; -1, with an empty buffer, after Cancel or a closed window;
 * -1 after "GetTextBox: invalid buffer" for a null buffer or a size below 2.
 */
KITEGUI_API int guiGetTextBox(const char *prompt, char *buffer, int size, int hidden);

/* ---------------------------------------------------------------------------------------------
 * Editor box
 *
 * The user edits a text of several lines, which the host gives and takes line by line:
 *
 *     guiEditorReset();
 *     guiEditorPutLine("Dear ...,");
 *     if (guiEditorBox("Letter") >= 0)
 *         while (guiEditorGetLine(line, sizeof line) >= 0) ...
 * ------------------------------------------------------------------------------------------ */

/* Empties the text. Returns 0. */
KITEGUI_API int guiEditorReset(void);

/*
 * Appends a line, with a line end, to the text. Returns its length in bytes; -1 for null; -1 after "EditorPutLine:
 * out of memory", the text unchanged.
 */
KITEGUI_API int guiEditorPutLine(const char *line);

/*
 * Lets the user edit the text, in a box of 550 x 400 pixels. Cancel and the close button ask "Exit the editor?".
 *
 *   title  null or empty: "Editor"
 *
 * Returns the number of lines of the text when the user is done, 0 when it is empty; a last line without a line end
 * counts as well. -1 when the user gave up, after "EditBox: cannot retrieve text" or "EditBox: out of memory", and
 * when the box could not be shown; but for the last of these the text is empty then.
 */
KITEGUI_API int guiEditorBox(const char *title);

/*
 * Copies the next line, without its line end and carriage returns, into the buffer. Of a line of size - 1 bytes or
 * more, the next call returns the rest, which may be nothing but the line end: 0 then. (A last line without a line end
 * has no such rest.)
 *
 * Returns the length. With the last line the text is emptied: the next call returns -1. -1 after "EditorGetLine:
 * invalid buffer" for a null buffer or a size below 2.
 */
KITEGUI_API int guiEditorGetLine(char *buffer, int size);

/* ---------------------------------------------------------------------------------------------
 * File boxes
 * ------------------------------------------------------------------------------------------ */

/*
 * Lets the user choose a file to open, or a directory.
 *
 *   title      null or empty: "Open"
 *   filter     descriptions and patterns, "Texts|*.txt|All|*|", of which the first pattern is used: the files that
 *              match it are listed. Null or empty: "All files|*.*|". Without a "|": all files.
 *   defExt     appended, behind a ".", to a name without one. Null or empty: none.
 *   mustExist  0: any name is taken. Above 0: only that of a file that exists; for others a box says "Cannot
 *              access the file" or "It's a directory, not a file", and the user can choose again. Below 0: the box
 *              lists directories only, and what the user makes of the choice is returned as it is, without defExt.
 *   buffer     the file to begin with, or empty; receives the path, at most size - 1 bytes
 *
 * A path is at most 1023 bytes long. When the profile key "cddir" is 1, the directory of the chosen file becomes the
 * working directory: a relative path, which only a user can type, no longer leads to the file then.
 *
 * Returns the length of the path; -1, the buffer empty, when the user gave up (also by choosing nothing, or a path
 * that ends in "/") and when the path does not fit; -1 after "OpenFileBox: invalid buffer" for a null buffer or a
 * size below 2.
 */
KITEGUI_API int guiOpenFileBox(const char *title, const char *filter, const char *defExt,
                               int mustExist, char *buffer, int size);

/*
 * Lets the user choose a file to write to: as guiOpenFileBox, with these differences. The default title is "Save
 * As". With confirmOverwrite other than 0, the user is asked "File exists. Overwrite?", and directories are refused.
 * The misuse message is "SaveFileBox: invalid buffer".
 */
KITEGUI_API int guiSaveFileBox(const char *title, const char *filter, const char *defExt,
                               int confirmOverwrite, char *buffer, int size);

/* ---------------------------------------------------------------------------------------------
 * Printing
 * ------------------------------------------------------------------------------------------ */

/* The library has no page settings. Returns -1. */
KITEGUI_API int guiGetDefPrnPage(void);

/*
 * Prints a file by a command, which kxExec runs: "lp -c", with " -olandscape" when the profile key "landscape" is 1
 * and " -oeolwrap" when lines are wrapped, or what the profile key "lpcmd" holds instead. The first "%file" in it
 * stands for the file; without one the file comes last. A box asks the user for patience; no events are delivered
 * until the command has ended, and for a second at least.
 *
 *   file      as it stands in the command line, for the shell: a name with blanks needs quotes
 *   a2 to a7  not used
 *   wrap      1 or 2: long lines are wrapped
 *
 * Returns 0 when the command was run, whatever came of it; -1 for a null or empty file, an empty command, a command
 * line of more than 2047 bytes, and where there is no window that the box could belong to; -1 after "Could not
 * execute print command".
 */
KITEGUI_API int guiPrintFile(const char *file, int a2, int a3, int a4, int a5, int a6, int a7,
                             int wrap);

/* ---------------------------------------------------------------------------------------------
 * Host services: functions that the host program defines and the library calls
 *
 * The section is always the application name. kitehost has all seven ready-made.
 * ------------------------------------------------------------------------------------------ */

/* The integer stored under the key, or defaultValue when there is none. */
int kxGetUPInt(const char *section, const char *key, int defaultValue);

/* Stores an integer under the key. */
void kxSetUPInt(const char *section, const char *key, int value);

/*
 * Copies the string stored under the key into the buffer: at most size bytes with the terminating null.
 * Leaves the buffer as it is when there is none.
 */
void kxGetUPStr(const char *section, const char *key, char *buffer, int size);

/* The application directory, ending with a path separator: images are looked for below it. */
const char *kxAppDir(void);

/* The full path name of a file. The library copies the result at once; null counts as empty. */
const char *kxFullName(const char *path);

/* The index in the path at which the file name begins, behind the directory. */
int kxLocNamePos(const char *path);

/*
 * Runs a command line; the library passes 1 for both flags. Returns -1 when it could not be run at all: a shell that
 * does not find the command has been run.
 */
int kxExec(const char *commandLine, int flag1, int flag2);

#ifdef __cplusplus
}

/* ---------------------------------------------------------------------------------------------
 * Log file (C++ only)
 * ------------------------------------------------------------------------------------------ */

/*
 * A plain text log, framed by a start line and a stop line with the local date and time:
 *
 *     >>>LogStarted: 2026.01.31 08:15:00
 *
 *     what was written
 *
 *     >>>LogStopped: 2026.01.31 17:00:00
 *
 * The file is opened and closed around every call, so what was written is on disk even if the host
 * dies. No call reports an error: what cannot be written is not, and the next call tries again.
 */
class KITEGUI_API LogFile {
public:
    LogFile() = default;
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    /* Writes a last stop line when a log was started. */
    ~LogFile();

    /*
     * Begins a log in the file `path`; null or empty begins none. A log that was written before gets
     * its stop line first. With `truncate` non-zero the file is emptied, else it is continued behind an
     * empty line.
     */
    void start(const char *path, int truncate);

    /* Appends a text; with `asLine` non-zero it ends with a newline. Null writes nothing. */
    void write(const char *text, int asLine);

    /*
     * Appends the stop line, behind an empty line unless the last line was empty. A second call writes
     * a second stop line. Without a log nothing happens.
     */
    void stop();

private:
    std::FILE *stream = nullptr;  /* non-null since the latest start or write could open the file,
                                     until stop; closed between two calls */
    int endsWithBlankLine = 0;
    char *path = nullptr;         /* owned copy */
};

/* ---------------------------------------------------------------------------------------------
 * Colours of pictures (C++ only)
 * ------------------------------------------------------------------------------------------ */

/*
 * The up to 256 colours of a picture with a palette. A colour is allocated on the display when it is
 * asked for the first time, and what the display has refused is not asked for again. The display is the
 * one that the library uses at that moment; without one every colour is refused.
 */
class KITEGUI_API ImagePalette {
public:
    /* As after reset(0). */
    ImagePalette();

    /*
     * Makes every entry black and not yet allocated.
     *
     *   colormap  the X colormap in which colours are allocated from now on. With 0, and with one that
     *             does not exist, every colour is refused.
     *
     * What was allocated before stays allocated: pictures may show it.
     */
    void reset(unsigned long colormap);

    /*
     * Gives an entry a colour, which has to be allocated anew.
     *
     *   index             0 to 255; for any other nothing happens
     *   red, green, blue  0 to 255; of other values the lowest eight bits count
     */
    void set(int index, int red, int green, int blue);

    /*
     * Returns 1 when the entry's colour is allocated, which this call does when it is the first for it;
     * 0 when the display has refused it, and for an index that is not 0 to 255. Each component is
     * allocated as its 256-fold, so 255 as 0xFF00.
     */
    int isGood(int index);

    /* The entry's X pixel, meaningful after isGood has returned 1; 0 when it never was allocated. */
    unsigned long get(int index) const;

private:
    struct Entry {
        unsigned char red, green, blue;
        unsigned char state;  /* 0 not yet allocated, 1 allocated, 2 refused */
        unsigned int pixel;
    };
    Entry entries[256];
    unsigned long colormap;
};
#endif

#endif
