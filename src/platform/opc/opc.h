// The package library: Open Packaging Conventions packages in zip files or
// folders, their parts, content types and relationships, and the glue to
// Xerces DOM documents.
#pragma once

#include "platform/opc/exception.h"
#include "platform/opc/fs_package.h"
#include "platform/opc/names.h"
#include "platform/opc/package.h"
#include "platform/opc/physical_package.h"
#include "platform/opc/streams.h"
#include "platform/opc/xerces_helper.h"
#include "platform/opc/zip_package.h"
