#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <vector>

/// A picture of a batch.
struct BatchPicture
{
    QString record; ///< path, as on the command line
    QString wall;   ///< name, empty without walls
    QString file;   ///< name in the folder
    QSize size;     ///< chart pixels
    qint64 bytes = 0;
    QByteArray sha256;  ///< of the file, in hexadecimal digits
    QString problem;    ///< why it is not there; empty where it is
    bool begun = false; ///< unless the batch was interrupted before
};

/// The manifest of a batch as JSON.
QByteArray manifest(const std::vector<BatchPicture>& pictures);
