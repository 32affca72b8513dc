#pragma once
// The Save entry of the robot forms.
class QWidget;

// Saves the performance to gConfigFilePath; when it is empty, the form's own
// save dialog asks for the main file first. Unlike Save As of the main window,
// gConfigName and gConfigFolder are left as they are, so a first save from a
// robot form puts the data files under whatever name and folder were set (the
// empty ones after New).
void SaveFromBotForm(QWidget* form);
