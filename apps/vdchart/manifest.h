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
    QByteArray sha256;   ///< of the file, in hexadecimal digits
    QString problem;     ///< why it is not there; empty where it is
    QByteArray source;   ///< the hash of what it is made of
    bool begun = false;  ///< unless the batch was interrupted before
    bool isKept = false; ///< as an earlier batch made it
};

/// The manifest of a batch as JSON, without the pictures that are still to be made.
QByteArray manifest(const std::vector<BatchPicture>& pictures);

/// The pictures of the manifest in the file `path`. Throws Failure where it cannot be read or is none.
std::vector<BatchPicture> readManifest(const QString& path);

/// The SHA-256 of a file in hexadecimal digits; empty where it is none or cannot be read.
QByteArray fileHash(const QString& path);
