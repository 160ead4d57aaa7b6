// Which function draws which kind of entity. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Draws an entity of the kind that it is registered for.
using DrawFunction = void (*)(const OdDbEntity& entity, EntityPen& pen);

/// The function for a kind, by its name in a file; null if the kind has no look here.
DrawFunction DrawFunctionFor(const char* kind);

void DrawLine(const OdDbEntity& entity, EntityPen& pen);
void DrawCircle(const OdDbEntity& entity, EntityPen& pen);
void DrawArc(const OdDbEntity& entity, EntityPen& pen);
void DrawEllipse(const OdDbEntity& entity, EntityPen& pen);
void DrawRay(const OdDbEntity& entity, EntityPen& pen);
void DrawPoint(const OdDbEntity& entity, EntityPen& pen);
void DrawSpline(const OdDbEntity& entity, EntityPen& pen);
void DrawLightPolyline(const OdDbEntity& entity, EntityPen& pen);
void DrawPolyline(const OdDbEntity& entity, EntityPen& pen);
void DrawSolid(const OdDbEntity& entity, EntityPen& pen);
void DrawFace(const OdDbEntity& entity, EntityPen& pen);
void DrawMesh(const OdDbEntity& entity, EntityPen& pen);
void DrawReference(const OdDbEntity& entity, EntityPen& pen);
void DrawTable(const OdDbEntity& entity, EntityPen& pen);
void DrawDimension(const OdDbEntity& entity, EntityPen& pen);
void DrawTextLine(const OdDbEntity& entity, EntityPen& pen);
void DrawAttributeDefinition(const OdDbEntity& entity, EntityPen& pen);
void DrawParagraph(const OdDbEntity& entity, EntityPen& pen);
void DrawHatch(const OdDbEntity& entity, EntityPen& pen);
void DrawLeader(const OdDbEntity& entity, EntityPen& pen);
void DrawMultileader(const OdDbEntity& entity, EntityPen& pen);
void DrawMultiline(const OdDbEntity& entity, EntityPen& pen);
void DrawShape(const OdDbEntity& entity, EntityPen& pen);
void DrawTolerance(const OdDbEntity& entity, EntityPen& pen);
void DrawImage(const OdDbEntity& entity, EntityPen& pen);
void DrawWipeout(const OdDbEntity& entity, EntityPen& pen);
void DrawViewport(const OdDbEntity& entity, EntityPen& pen);
