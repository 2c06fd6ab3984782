#pragma once

#include <string>

#include "Workbench/Project/FileFields.hpp"

/// The keys of the project file, group by group, each for both ways. The order of the calls is the
/// order of the keys in the file: what is named stands before what names it.
namespace Merivane::Workbench {

/// `pavimentos`, `camadas`, `combinacoes`, `tiposDeLinha`, `preenchimentos`, `superficies`.
void AttributeFields(FieldsToRead& fields, Project& project);
void AttributeFields(FieldsToWrite& fields, const Project& project);

/// The keys of a surface.
void SurfaceFields(FieldsToRead& fields, Host::ModelSurface& surface);
void SurfaceFields(FieldsToWrite& fields, const Host::ModelSurface& surface);

/// `pecas`.
void LibraryPartFields(FieldsToRead& fields, Project& project);
void LibraryPartFields(FieldsToWrite& fields, const Project& project);

/// `janelas`.
void DatabaseFields(FieldsToRead& fields, Project& project);
void DatabaseFields(FieldsToWrite& fields, const Project& project);

/// `elementos`.
void ElementListFields(FieldsToRead& fields, Project& project);
void ElementListFields(FieldsToWrite& fields, const Project& project);

/// `vistas`, `bibliotecas`, `dados`, `selecao`, and what the user sees.
void SessionFields(FieldsToRead& fields, Project& project);
void SessionFields(FieldsToWrite& fields, const Project& project);

/// `parametros` of a placed part: the values that differ from its part's. For reading,
/// `libraryIndex` is known once `peca` was read.
void OwnParameterFields(FieldsToRead& fields, const Project& project,
                        const std::int32_t& libraryIndex,
                        std::vector<Host::LibraryParameter>& parameters);
void OwnParameterFields(FieldsToWrite& fields, const Project& project,
                        const std::int32_t& libraryIndex,
                        const std::vector<Host::LibraryParameter>& parameters);

/// The keys of a shape beside `forma`.
void GeometryFields(FieldsToRead& fields, ModelGeometry& geometry);
void GeometryFields(FieldsToWrite& fields, const ModelGeometry& geometry);

/// The keys of bodies: vertices and faces.
void BodyFields(FieldsToRead& fields, GivenBody& body);
void BodyFields(FieldsToWrite& fields, const GivenBody& body);
void BodyFields(FieldsToRead& fields, Host::MorphBody& body);
void BodyFields(FieldsToWrite& fields, const Host::MorphBody& body);

/// The keys of an element's own data and of what hangs on it.
void ContentFields(FieldsToRead& fields, const Project& project, ProjectElement& element);
void ContentFields(FieldsToWrite& fields, const Project& project, const ProjectElement& element);

/// Refuses what single values can't show: lists that do not fit each other.
bool CheckProject(const Place& root, const Project& project, const FileNames& names,
                  std::string& error);

} // namespace Merivane::Workbench
