#pragma once
// Capture settings of one capture device for one subscene.
#include <QString>
#include <QtGlobal>

class CVideoCapture {
public:
    qint16 m_iFPS = 5;                              // frames per second
    qint16 m_iQuality = 50;                         // JPEG quality
    QString m_strRootFolder = QStringLiteral("C:\\"); // root folder of the captured images
    qint16 m_iNumFolders = 8;
    qint16 m_iMaxTime = 3;                          // seconds
};
