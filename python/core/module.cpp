// The module kfmgen._core: one function, which the functions of the package call with plain arguments.
#define PY_SSIZE_T_CLEAN
#define NPY_NO_DEPRECATED_API NPY_1_19_API_VERSION
#include <Python.h>
#include <numpy/arrayobject.h>

#include <algorithm>
#include <climits>
#include <string_view>
#include <utility>

#include "arrays.h"

namespace kfm::python {
namespace {

// A reference that is given back, whatever happens.
class Reference {
public:
    explicit Reference(PyObject* object) : object_(object) {}
    ~Reference() { Py_XDECREF(object_); }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    void reset(PyObject* object) {
        Py_XDECREF(object_);
        object_ = object;
    }
    explicit operator bool() const { return object_ != nullptr; }
    PyObject* object() const { return object_; }
    PyArrayObject* array() const { return reinterpret_cast<PyArrayObject*>(object_); }
    PyObject* release() {
        PyObject* const object = object_;
        object_ = nullptr;
        return object;
    }

private:
    PyObject* object_;
};

// Refusals set Python's error and return false or null.

bool readNorm(PyObject* object, Norm& norm) {
    norm = Norm::backward;
    if (object == Py_None) return true;
    const char* const word = PyUnicode_Check(object) ? PyUnicode_AsUTF8(object) : "";
    if (!word) return false;
    for (const auto& [name, value] :
         {std::pair("backward", Norm::backward), std::pair("ortho", Norm::ortho),
          std::pair("forward", Norm::forward)})
        if (std::string_view(name) == word) {
            norm = value;
            return true;
        }
    PyErr_Format(PyExc_ValueError, "norm is %R: should be \"backward\", \"ortho\" or \"forward\"",
                 object);
    return false;
}

bool readAxis(PyObject* object, int dimensions, int& axis) {
    const Py_ssize_t index = PyNumber_AsSsize_t(object, PyExc_OverflowError);
    if (index == -1 && PyErr_Occurred()) return false;
    if (-dimensions <= index && index < dimensions) {
        axis = static_cast<int>(index < 0 ? index + dimensions : index);
        return true;
    }
    Reference numpy(PyImport_ImportModule("numpy.exceptions"));   // where newer ones have it
    if (!numpy) {
        PyErr_Clear();
        numpy.reset(PyImport_ImportModule("numpy"));
    }
    if (!numpy) return false;
    const Reference type(PyObject_GetAttrString(numpy.object(), "AxisError"));
    if (!type) return false;
    const Reference error(PyObject_CallFunction(type.object(), "ni", index, dimensions));
    if (error) PyErr_SetObject(type.object(), error.object());
    return false;
}

int typeNumber(bool complex, bool doublePrecision) {
    if (complex) return doublePrecision ? NPY_COMPLEX128 : NPY_COMPLEX64;
    return doublePrecision ? NPY_FLOAT64 : NPY_FLOAT32;
}

// As an array of native numbers of a type that the transform takes and that holds all of the values,
// the shortest one; the array itself where it is one. Whether it is aligned does not matter.
PyObject* readSource(PyObject* object, const Transform& kind, bool& doublePrecision) {
    Reference given(PyArray_FROM_O(object));
    if (!given) return nullptr;
    PyArray_Descr* const type = PyArray_DESCR(given.array());
    for (const bool twice : {false, true}) {
        const int number = typeNumber(kind.source.complex, twice);
        if (!PyArray_CanCastSafely(type->type_num, number)) continue;
        doublePrecision = twice;
        if (type->type_num == number && PyArray_ISNOTSWAPPED(given.array())) return given.release();
        return PyArray_CastToType(given.array(), PyArray_DescrFromType(number), 0);
    }
    PyErr_Format(PyExc_TypeError, "%s takes %s, or what these hold, not %R", kind.name,
                 kind.source.complex ? "complex64 and complex128" : "float32 and float64", type);
    return nullptr;
}

// The length of the signal, from that of the source's axis and from what was asked for, or None.
bool readLength(PyObject* object, const Transform& kind, npy_intp axis, bool doublePrecision,
                int& length) {
    const npy_intp pairs = kind.source.complex ? axis : axis / 2;
    npy_intp signal = kind.inverse ? 2 * (pairs - 1) : axis;
    if (object != Py_None) {
        signal = PyNumber_AsSsize_t(object, PyExc_OverflowError);
        if (signal == -1 && PyErr_Occurred()) return false;
    }
    if (kind.inverse) {
        if (signal < 1 || signal > INT_MAX || kind.source.size(static_cast<int>(signal)) != axis) {
            PyErr_Format(PyExc_ValueError,
                         "%s: half a spectrum of %zd values is not one of length %zd", kind.name,
                         axis, signal);
            return false;
        }
    }
    if ((!kind.inverse && signal != axis) || signal > INT_MAX ||
        !kind.hasLength(static_cast<int>(signal), doublePrecision)) {
        PyErr_Format(PyExc_ValueError, "%s: no length %zd: there are %s", kind.name, signal,
                     kind.lengths);
        return false;
    }
    length = static_cast<int>(signal);
    return true;
}

// A new reference to `out`, or to a new array where that is None.
PyObject* readOut(PyObject* out, const Transform& kind, PyArrayObject* source, int axis,
                  npy_intp count, bool doublePrecision) {
    npy_intp shape[NPY_MAXDIMS];
    const int dimensions = PyArray_NDIM(source);
    std::copy_n(PyArray_DIMS(source), dimensions, shape);
    shape[axis] = count;
    const int number = typeNumber(kind.destination.complex, doublePrecision);
    if (out == Py_None) return PyArray_SimpleNew(dimensions, shape, number);
    if (!PyArray_Check(out)) {
        PyErr_Format(PyExc_TypeError, "%s: out is no array", kind.name);
        return nullptr;
    }
    const auto array = reinterpret_cast<PyArrayObject*>(out);
    if (PyArray_TYPE(array) != number || !PyArray_ISNOTSWAPPED(array)) {
        const Reference wanted(reinterpret_cast<PyObject*>(PyArray_DescrFromType(number)));
        PyErr_Format(PyExc_TypeError, "%s: out is of type %R, the result of %R", kind.name,
                     PyArray_DESCR(array), wanted.object());
        return nullptr;
    }
    if (PyArray_NDIM(array) != dimensions ||
        !std::equal(shape, shape + dimensions, PyArray_DIMS(array))) {
        PyErr_Format(PyExc_ValueError, "%s: out has another shape than the result", kind.name);
        return nullptr;
    }
    if (PyArray_FailUnlessWriteable(array, "out") < 0) return nullptr;
    Py_INCREF(out);
    return out;
}

struct Extent {
    const char *first, *end;

    explicit Extent(PyArrayObject* array) : first(PyArray_BYTES(array)), end(first) {
        for (int i = 0; i < PyArray_NDIM(array); ++i) {
            const npy_intp last = (PyArray_DIM(array, i) - 1) * PyArray_STRIDE(array, i);
            (last < 0 ? first : end) += last;
        }
        end += PyArray_ITEMSIZE(array);
    }
};

// Whether every element is written where it, and nothing else, was read.
bool inPlace(PyArrayObject* source, PyArrayObject* out) {
    if (PyArray_BYTES(source) != PyArray_BYTES(out) || PyArray_TYPE(source) != PyArray_TYPE(out))
        return false;
    for (int i = 0; i < PyArray_NDIM(out); ++i)
        if (PyArray_DIM(source, i) != PyArray_DIM(out, i) ||
            PyArray_STRIDE(source, i) != PyArray_STRIDE(out, i))
            return false;
    return true;
}

bool mayOverlap(PyArrayObject* source, PyArrayObject* out) {
    const Extent read(source), written(out);
    return read.first < written.end && written.first < read.end && !inPlace(source, out);
}

Side sideOf(PyArrayObject* array, int axis) {
    return {PyArray_BYTES(array), PyArray_STRIDE(array, axis),
            static_cast<int>(PyArray_DIM(array, axis))};
}

KfmStatus computeUnlocked(const Work& work, npy_intp bytes) {
    constexpr npy_intp worthwhile = 8192;
    if (bytes < worthwhile) return compute(work);
    PyThreadState* const state = PyEval_SaveThread();
    const KfmStatus status = compute(work);
    PyEval_RestoreThread(state);
    return status;
}

// A Dask array is computed later, by calls that are given its blocks.
PyObject* transformLazily(PyObject* const* arguments, Py_ssize_t count) {
    const Reference module(PyImport_ImportModule("kfmgen._dask"));
    if (!module) return nullptr;
    const Reference function(PyObject_GetAttrString(module.object(), "transform"));
    if (!function) return nullptr;
    return PyObject_Vectorcall(function.object(), arguments, count, nullptr);
}

// transform(index, x, length, axis, norm, out)
PyObject* transform(PyObject*, PyObject* const* arguments, Py_ssize_t count) {
    if (count != 6) {
        PyErr_SetString(PyExc_TypeError, "six arguments are wanted");
        return nullptr;
    }
    if (!PyArray_Check(arguments[1]) && PyObject_HasAttrString(arguments[1], "__dask_graph__"))
        return transformLazily(arguments, count);
    const long number = PyLong_AsLong(arguments[0]);
    if (number < 0 || number >= static_cast<long>(transforms().size())) {
        if (!PyErr_Occurred()) PyErr_SetString(PyExc_ValueError, "no such transform");
        return nullptr;
    }
    const Transform& kind = transforms()[number];
    Work work{.kind = &kind,
              .doublePrecision = false,
              .norm = Norm::backward,
              .length = 0,
              .src = {},
              .dst = {},
              .outer = {}};
    Reference source(readSource(arguments[1], kind, work.doublePrecision));
    if (!source) return nullptr;
    int axis;
    if (!readAxis(arguments[3], PyArray_NDIM(source.array()), axis) ||
        !readNorm(arguments[4], work.norm) ||
        !readLength(arguments[2], kind, PyArray_DIM(source.array(), axis), work.doublePrecision,
                    work.length))
        return nullptr;
    Reference out(readOut(arguments[5], kind, source.array(), axis,
                          kind.destination.size(work.length), work.doublePrecision));
    if (!out) return nullptr;
    if (PyArray_SIZE(out.array()) == 0) return out.release();
    if (arguments[5] != Py_None && mayOverlap(source.array(), out.array())) {
        source.reset(PyArray_NewCopy(source.array(), NPY_ANYORDER));
        if (!source) return nullptr;
    }
    work.src = sideOf(source.array(), axis);
    work.dst = sideOf(out.array(), axis);
    for (int i = 0; i < PyArray_NDIM(out.array()); ++i)
        if (i != axis)
            work.outer.push_back({PyArray_DIM(out.array(), i), PyArray_STRIDE(source.array(), i),
                                  PyArray_STRIDE(out.array(), i)});
    if (computeUnlocked(work, PyArray_NBYTES(out.array())) != kfmOk)
        return PyErr_NoMemory();   // lengths were looked at before
    return out.release();
}

PyMethodDef methods[] = {{"transform",
                          reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(transform)),
                          METH_FASTCALL, "transform(index, x, length, axis, norm, out)"},
                         {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "kfmgen._core",
                          nullptr,
                          -1,
                          methods,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

}   // namespace
}   // namespace kfm::python

PyMODINIT_FUNC PyInit__core() {
    import_array();
    PyObject* const module = PyModule_Create(&kfm::python::definition);
    const auto table = kfm::python::transforms();
    for (std::size_t i = 0; module && i < table.size(); ++i)
        if (PyModule_AddIntConstant(module, table[i].constant, static_cast<long>(i)) < 0) {
            Py_DECREF(module);
            return nullptr;
        }
    return module;
}
